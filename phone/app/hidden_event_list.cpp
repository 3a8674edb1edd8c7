#include "phone/app/hidden_event_list.h"

#include "contract/hidden_events.h"
#include "phone/app/phone_files.h"
#include "phone/calendarstore/database/identifiers.h"

namespace phone {

namespace {

/// All occurrences of an event share what stands before the occurrence's start in its address.
std::string keyOf(const std::string& calendarIdentifier, const std::string& uid) {
  const std::string address = externalAddress(calendarIdentifier, uid, 0);
  return address.substr(0, address.find(contract::kOccurrenceQuery));
}

}  // namespace

std::string hiddenKeyPrefix(const std::string& calendarIdentifier) { return keyOf(calendarIdentifier, ""); }

HiddenEvents::HiddenEvents()
    : store_(objc::Owned<NSDictionary>::retain(readDictionary(contract::kHiddenEventsFile).get())) {}

bool HiddenEvents::contains(const std::string& eventIdentifier) const {
  const auto name = parseEventIdentifier(eventIdentifier);
  if (!name) return false;
  return store_->objectForKey(textObject(keyOf(name->calendarIdentifier, name->uid))) != nullptr;
}

}  // namespace phone
