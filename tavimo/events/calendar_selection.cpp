#include "tavimo/events/calendar_selection.h"

#include "contract/files.h"
#include "platform/eventkit/ek_calendar.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_dictionary.h"
#include "platform/foundation/ns_mutable_array.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

/// Whether a list from a file holds that identifier. Entries that are no texts match nothing.
bool holdsIdentifier(NSArray* identifiers, NSString* identifier) {
  const NSUInteger count = identifiers->count();
  for (NSUInteger i = 0; i < count; ++i) {
    NSString* const entry = objc::asKind<NSString>(identifiers->objectAtIndex(i));
    if (entry != nullptr && entry->isEqualToString(identifier)) return true;
  }
  return false;
}

/// Every calendar that the user has not switched off in the Calendar app; none of them when that app's
/// preferences cannot be read.
void selectShownCalendars(EKEventStore* store, NSMutableArray* selection) {
  NSDictionary* const preferences =
      NSDictionary::dictionaryWithContentsOfFile(constantText<contract::kCalendarAppPreferencesFile>());
  if (preferences == nullptr) return;
  TAVIMO_DEBUG(log<"got %lu items from calendar config file">(preferences->count()));
  NSArray* const switchedOff = objc::asKind<NSArray>(preferences->objectForKey("LastDeselectedCalendars"_ns));
  NSArray* const calendars = store->calendars();
  const NSUInteger count = calendars->count();
  for (NSUInteger i = 0; i < count; ++i) {
    auto* const calendar = static_cast<EKCalendar*>(calendars->objectAtIndex(i));
    if (!holdsIdentifier(switchedOff, calendar->calendarIdentifier())) selection->addObject(calendar);
  }
}

/// The calendars that the file's identifiers name, in the file's order; each unknown one is reported.
void selectNamedCalendars(EKEventStore* store, NSArray* identifiers, NSMutableArray* selection) {
  const NSUInteger count = identifiers->count();
  for (NSUInteger i = 0; i < count; ++i) {
    NSObject* const entry = identifiers->objectAtIndex(i);
    NSString* const identifier = objc::asKind<NSString>(entry);
    EKCalendar* const calendar = identifier == nullptr ? nullptr : store->calendarWithIdentifier(identifier);
    if (calendar == nullptr) {
      log<"unable to find calendar with UUID %@, skipping">(entry);
    } else {
      selection->addObject(calendar);
    }
  }
}

}  // namespace

NSArray* selectedCalendars(EKEventStore* store) {
  NSMutableArray* const selection = NSMutableArray::array();
  if (onlySelectedCalendars) {
    selectShownCalendars(store, selection);
    return selection;
  }
  NSArray* const identifiers =
      NSArray::arrayWithContentsOfFile(constantText<contract::kCalendarSelectionFile>());
  if (identifiers->count() == 0) {
    log<"no enabled calendars found, not searching the DB!">();
    return nullptr;
  }
  selectNamedCalendars(store, identifiers, selection);
  return selection;
}

}  // namespace tavimo
