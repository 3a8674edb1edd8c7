#include "phone/calendarui/event_fields.h"

#include <cmath>
#include <stdexcept>

#include "phone/eventkit/store_connection.h"
#include "platform/eventkit/ek_calendar.h"
#include "platform/eventkit/ek_event.h"
#include "platform/eventkit/ek_event_store.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"

namespace phone {

namespace {

NSString* nsString(const std::string& text) { return NSString::stringWithUTF8String(text.c_str()); }

NSDate* dateAt(double seconds) { return NSDate::dateWithTimeIntervalSinceReferenceDate(seconds); }

EKCalendar* findCalendar(EKEventStore* store, const std::string& wanted) {
  if (EKCalendar* const calendar = store->calendarWithIdentifier(nsString(wanted))) return calendar;
  std::string titles;
  NSArray* const calendars = store->calendars();
  for (NSUInteger i = 0; i < calendars->count(); ++i) {
    auto* const calendar = static_cast<EKCalendar*>(calendars->objectAtIndex(i));
    const std::string title = calendar->title()->UTF8String();
    if (title == wanted) return calendar;
    titles += (titles.empty() ? "" : ", ") + title;
  }
  throw std::runtime_error("There is no calendar \"" + wanted + "\". The calendars are: " + titles + ".");
}

}  // namespace

void enterFields(EKEvent* event, EKEventStore* store, const EventFields& fields) {
  EKCalendar* const calendar = fields.calendar ? findCalendar(store, *fields.calendar) : event->calendar();
  const double oldStart = event->startDate()->timeIntervalSinceReferenceDate();
  const double length = event->endDate()->timeIntervalSinceReferenceDate() - oldStart;
  const double start = fields.start.value_or(oldStart);
  const double end = fields.end.value_or(start + length);
  if (end < start) throw std::runtime_error("The event would end before it starts.");
  if (fields.title) event->setTitle(nsString(*fields.title));
  if (fields.location) event->setLocation(nsString(*fields.location));
  if (fields.allDay) event->setAllDay(*fields.allDay);
  event->setStartDate(dateAt(start));
  event->setEndDate(dateAt(end));
  event->setCalendar(calendar);
}

EKEvent* makeNewEvent(EKEventStore* store) {
  constexpr double kHour = 3600;
  // A phone into which nothing was imported has a calendar of its own all the same.
  if (store->calendars()->count() == 0) sharedDatabaseForWriting().calendarNamed("Calendar", std::nullopt);
  EKEvent* const event = EKEvent::eventWithEventStore(store);
  const double start = std::ceil(NSDate::date()->timeIntervalSinceReferenceDate() / kHour) * kHour;
  event->setStartDate(dateAt(start));
  event->setEndDate(dateAt(start + kHour));
  event->setCalendar(store->defaultCalendarForNewEvents());
  return event;
}

}  // namespace phone
