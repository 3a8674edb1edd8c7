#include "tavimo/events/event_query.h"

#include "platform/foundation/ns_calendar.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_date_components.h"
#include "platform/foundation/ns_mutable_array.h"
#include "tavimo/events/calendar_selection.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

constexpr double kSecondsPerDay = 86400.0;

/// The last second of the last day to display. Days count a fixed number of seconds each, so across a change
/// of daylight saving time the end falls one hour off midnight.
NSDate* endOfRange(NSDate* now) {
  NSCalendar* const calendar = NSCalendar::currentCalendar();
  NSDateComponents* const parts =
      calendar->components(NSCalendar::kYear | NSCalendar::kMonth | NSCalendar::kDay | NSCalendar::kHour |
                               NSCalendar::kMinute | NSCalendar::kSecond,
                           now);
  parts->setHour(23);
  parts->setMinute(59);
  parts->setSecond(59);
  return calendar->dateFromComponents(parts)->dateByAddingTimeInterval(static_cast<double>(daysToDisplay) *
                                                                       kSecondsPerDay);
}

bool isMissing(NSObject* event) {
  return event == nullptr || event->isKindOfClass(objc::classNamed<"NSNull">());
}

/// Appends the entries that are events, up to the configured number.
void takeEvents(NSArray* found, NSMutableArray* events) {
  const NSUInteger count = found->count();
  NSInteger taken = 0;
  for (NSUInteger i = 0; i < count; ++i) {
    NSObject* const event = found->objectAtIndex(i);
    if (isMissing(event)) {
      log<"skipping nil event...">();
      continue;
    }
    events->addObject(event);
    ++taken;
    if (maxEventsToDisplay > 0 && taken >= maxEventsToDisplay) return;
  }
}

}  // namespace

objc::Owned<NSArray> fetchCalendarEvents(EKEventStore* store) {
  auto events = objc::make<NSMutableArray>();
  if (NSArray* const calendars = selectedCalendars(store); calendars != nullptr) {
    NSDate* const start = NSDate::date();
    NSDate* const end = endOfRange(start);
    TAVIMO_DEBUG(log<"start date: %@, end date: %@">(start, end));
    takeEvents(store->eventsMatchingPredicate(store->predicateForEvents(start, end, calendars)),
               events.get());
  }
  return objc::Owned<NSArray>::adopt(events.relinquish());
}

}  // namespace tavimo
