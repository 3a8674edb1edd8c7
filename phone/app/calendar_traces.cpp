#include "phone/app/calendar_traces.h"

#include "phone/app/calendar_choice.h"
#include "phone/app/hidden_event_list.h"
#include "phone/app/phone_files.h"

namespace phone {

namespace {

/// Takes the texts out; true if one was there.
bool removeTexts(NSMutableArray* list, const std::vector<std::string>& texts) {
  const NSUInteger before = list->count();
  for (const std::string& text : texts) list->removeObject(textObject(text));
  return list->count() != before;
}

/// The keys of the events of those calendars.
std::vector<NSString*> keysOf(NSDictionary* hiddenEvents, const std::vector<std::string>& calendars) {
  std::vector<NSString*> keys;
  NSArray* const all = hiddenEvents->allKeys();
  for (NSUInteger i = 0; i < all->count(); ++i) {
    NSString* const key = objc::asKind<NSString>(all->objectAtIndex(i));
    if (key == nullptr) continue;
    for (const std::string& calendar : calendars) {
      if (utf8(key).starts_with(hiddenKeyPrefix(calendar))) keys.push_back(key);
    }
  }
  return keys;
}

}  // namespace

CalendarTraces::CalendarTraces()
    : calendarApp_(readDictionary(contract::kCalendarAppPreferencesFile)),
      selection_(readArray(contract::kCalendarSelectionFile)),
      hiddenEvents_(readDictionary(contract::kHiddenEventsFile)) {}

void CalendarTraces::forget(const std::vector<std::string>& identifiers) {
  NSMutableArray* const deselected = deselectedIn(calendarApp_.get());
  if (deselected != nullptr && removeTexts(deselected, identifiers)) {
    writeFile(contract::kCalendarAppPreferencesFile, calendarApp_.get());
  }
  if (removeTexts(selection_.get(), identifiers))
    writeFile(contract::kCalendarSelectionFile, selection_.get());
  const std::vector<NSString*> keys = keysOf(hiddenEvents_.get(), identifiers);
  for (NSString* const key : keys) hiddenEvents_->removeObjectForKey(key);
  if (!keys.empty()) writeFile(contract::kHiddenEventsFile, hiddenEvents_.get());
}

}  // namespace phone
