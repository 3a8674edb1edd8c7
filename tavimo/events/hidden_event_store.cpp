#include "tavimo/events/hidden_event_store.h"

#include "contract/files.h"
#include "contract/hidden_events.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_mutable_dictionary.h"

namespace tavimo {

namespace {

NSMutableDictionary* loadEntries() {
  NSMutableDictionary* const entries =
      NSMutableDictionary::dictionaryWithContentsOfFile(constantText<contract::kHiddenEventsFile>());
  return entries == nullptr ? NSMutableDictionary::dictionary() : entries;
}

}  // namespace

NSString* hiddenEventKey(NSString* urlText) {
  if (urlText == nullptr) return nullptr;
  // Compared unit by unit: otherwise a combining mark behind the "=" would hide the match.
  const NSRange query =
      urlText->rangeOfString(constantText<contract::kOccurrenceQuery>(), NSString::kLiteralSearch);
  return query.location == NSNotFound ? urlText : urlText->substringToIndex(query.location);
}

NSDictionary* loadHiddenEvents() { return loadEntries(); }

bool isHiddenEvent(NSDictionary* store, NSString* key) {
  return key != nullptr && store->objectForKey(key) != nullptr;
}

void setEventHidden(NSString* key, bool hidden) {
  NSMutableDictionary* const entries = loadEntries();
  if (hidden) {
    entries->setObject("N"_ns, key);
  } else {
    entries->removeObjectForKey(key);
  }
  entries->writeToFile(constantText<contract::kHiddenEventsFile>(), true);
}

}  // namespace tavimo
