#include "phone/calendarui/event_fields.h"

#include <cmath>
#include <stdexcept>

#include "phone/calendarstore/database/calendar_lookup.h"
#include "phone/eventkit/eventkit.h"
#include "phone/eventkit/store_connection.h"
#include "platform/eventkit/ek_calendar.h"
#include "platform/eventkit/ek_event.h"
#include "platform/eventkit/ek_event_store.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"

namespace phone {

namespace {

/// Borrowed. Throws std::runtime_error for what is no text: the event would lose the field.
NSString* textObject(const char* field, const std::string& text) {
  NSString* const object = NSString::stringWithUTF8String(text.c_str());
  if (object == nullptr) throw std::runtime_error(std::string("the ") + field + " is no UTF-8 text");
  return object;
}

NSDate* dateAt(double seconds) { return NSDate::dateWithTimeIntervalSinceReferenceDate(seconds); }

EKCalendar* findCalendar(EKEventStore* store, const std::string& wanted) {
  std::vector<CalendarRecord> calendars;
  readDatabase([&calendars](CalendarDatabase& database) { calendars = database.calendars(); });
  const std::string identifier = calendarMeant(calendars, wanted).identifier;
  return store->calendarWithIdentifier(NSString::stringWithUTF8String(identifier.c_str()));
}

}  // namespace

void enterFields(EKEvent* event, EKEventStore* store, const EventFields& fields) {
  NSString* const title = fields.title ? textObject("title", *fields.title) : nullptr;
  NSString* const location = fields.location ? textObject("location", *fields.location) : nullptr;
  EKCalendar* const calendar = fields.calendar ? findCalendar(store, *fields.calendar) : event->calendar();
  const double oldStart = event->startDate()->timeIntervalSinceReferenceDate();
  const double length = event->endDate()->timeIntervalSinceReferenceDate() - oldStart;
  const double start = fields.start.value_or(oldStart);
  const double end = fields.end.value_or(start + length);
  if (end < start) throw std::runtime_error("the event would end before it starts");
  if (fields.title) event->setTitle(title);
  if (fields.location) event->setLocation(location);
  if (fields.allDay) event->setAllDay(*fields.allDay);
  event->setStartDate(dateAt(start));
  event->setEndDate(dateAt(end));
  event->setCalendar(calendar);
}

EKEvent* makeNewEvent(EKEventStore* store) {
  constexpr double kHour = 3600;
  // A phone into which nothing was imported has a calendar of its own all the same.
  const bool hasCalendars = store->calendars()->count() > 0;
  if (!calendarStoreProblem().empty()) throw std::runtime_error(calendarStoreProblem());
  if (!hasCalendars) sharedDatabaseForWriting().calendarNamed("Calendar", std::nullopt);
  EKEvent* const event = EKEvent::eventWithEventStore(store);
  const double start = std::ceil(NSDate::date()->timeIntervalSinceReferenceDate() / kHour) * kHour;
  event->setStartDate(dateAt(start));
  event->setEndDate(dateAt(start + kHour));
  event->setCalendar(store->defaultCalendarForNewEvents());
  return event;
}

}  // namespace phone
