#include <cmath>
#include <map>

#include "phone/calendarstore/database/event_changes.h"
#include "phone/eventkit/ek_objects.h"
#include "phone/eventkit/store_connection.h"
#include "phone/foundation/error_object.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_log.h"
#include "platform/foundation/ns_mutable_array.h"

namespace phone {

namespace {

/// What predicateForEventsWithStartDate:endDate:calendars: hands to eventsMatchingPredicate:.
struct PredicateState {
  TimeRange range{};
  /// None: every calendar.
  std::optional<std::vector<std::int64_t>> calendars;
};

enum Span : NSInteger { kThisEvent = 0, kFutureEvents = 1 };

Seconds secondsOf(NSDate* date) {
  return static_cast<Seconds>(std::floor(date->timeIntervalSinceReferenceDate()));
}

NSArray* calendars(EKEventStore*, SEL) {
  NSMutableArray* const all = NSMutableArray::array();
  withDatabase([all](CalendarDatabase& database) {
    for (const CalendarRecord& record : database.calendars()) all->addObject(makeCalendar(record).get());
  });
  return all;
}

/// Events are all that this store keeps, so every kind of entity has the same calendars.
NSArray* calendarsForEntityType(EKEventStore* self, SEL, NSUInteger) { return self->calendars(); }

EKCalendar* calendarWithIdentifier(EKEventStore*, SEL, NSString* identifier) {
  objc::Owned<EKCalendar> found;
  if (identifier == nullptr) return nullptr;
  withDatabase([&](CalendarDatabase& database) {
    const auto record = database.calendarWithIdentifier(identifier->UTF8String());
    if (record) found = makeCalendar(*record);
  });
  return found.autorelease();
}

EKCalendar* defaultCalendar(EKEventStore* self, SEL) {
  NSArray* const all = self->calendars();
  return all->count() == 0 ? nullptr : static_cast<EKCalendar*>(all->objectAtIndex(0));
}

NSObject* predicateForEvents(EKEventStore*, SEL, NSDate* start, NSDate* end, NSArray* calendarList) {
  auto predicate = objc::make<NSObject, "EKEventPredicate">();
  auto& search = stateOf<PredicateState>(predicate.get());
  search.range = {secondsOf(start), static_cast<Seconds>(std::ceil(end->timeIntervalSinceReferenceDate()))};
  if (calendarList != nullptr) {
    auto& rows = search.calendars.emplace();
    for (NSUInteger i = 0; i < calendarList->count(); ++i) {
      rows.push_back(stateOf<CalendarState>(calendarList->objectAtIndex(i)).record.id);
    }
  }
  return predicate.autorelease();
}

NSArray* eventsMatchingPredicate(EKEventStore* self, SEL, NSObject* predicate) {
  NSMutableArray* const events = NSMutableArray::array();
  if (predicate == nullptr) return events;
  const auto& search = stateOf<PredicateState>(predicate);
  withDatabase([&](CalendarDatabase& database) {
    std::map<std::int64_t, objc::Owned<EKCalendar>> objects;
    std::vector<std::int64_t> rows;
    for (const CalendarRecord& record : database.calendars()) {
      objects.emplace(record.id, makeCalendar(record));
      rows.push_back(record.id);
    }
    const FoundOccurrences found =
        occurrencesInRange(database, search.range, search.calendars.value_or(rows), phoneZone());
    for (const std::string& omission : found.omissions) {
      NSLog("Calendar: %@"_ns, makeString(omission).get());
    }
    for (const EventOccurrence& occurrence : found.occurrences) {
      events->addObject(makeEvent(self, occurrence, objects[occurrence.calendar].get()).get());
    }
  });
  return events;
}

objc::Owned<EKCalendar> calendarInRow(CalendarDatabase& database, std::int64_t row) {
  for (const CalendarRecord& record : database.calendars()) {
    if (record.id == row) return makeCalendar(record);
  }
  return {};
}

EKEvent* eventWithIdentifier(EKEventStore* self, SEL, NSString* identifier) {
  objc::Owned<EKEvent> event;
  if (identifier == nullptr) return nullptr;
  withDatabase([&](CalendarDatabase& database) {
    const auto found = findByIdentifier(database, identifier->UTF8String(), phoneZone());
    if (found) event = makeEvent(self, *found, calendarInRow(database, found->calendar).get());
  });
  return event.autorelease();
}

EventDraft draftOf(EKEvent* event) {
  const auto& item = stateOf<CalendarItemState>(event);
  if (!item.calendar) throw DatabaseError("the event belongs to no calendar");
  const auto& times = stateOf<EventState>(event);
  if (!times.startDate || !times.endDate) throw DatabaseError("the event has no start or no end");
  EventDraft draft{.calendar = stateOf<CalendarState>(item.calendar.get()).record.id,
                   .isAllDay = times.isAllDay,
                   .start = secondsOf(times.startDate.get()),
                   .end = secondsOf(times.endDate.get())};
  if (draft.end < draft.start) throw DatabaseError("the event ends before it starts");
  if (item.title) draft.title = item.title->UTF8String();
  if (item.location) draft.location = item.location->UTF8String();
  return draft;
}

/// Runs a change. A failure gives false, and its reason at `error`, if wanted, as well as to
/// calendarStoreProblem().
template <typename Change>
bool change(id* error, Change apply) {
  try {
    CalendarDatabase& database = sharedDatabaseForWriting();
    apply(EditContext{database, phoneZone(), secondsOf(NSDate::date())});
    reportStoreProblem("");
    return true;
  } catch (const DatabaseError& failure) {
    reportStoreProblem(failure.what());
    constexpr NSInteger kOtherError = 1;
    if (error != nullptr) *error = errorObject("EKErrorDomain"_ns, kOtherError, failure.what());
    return false;
  }
}

bool saveEvent(EKEventStore*, SEL selector, EKEvent* event, NSInteger span, id* error) {
  requireStore(event, selector);
  return change(error, [&](const EditContext& context) {
    const EventDraft draft = draftOf(event);
    const auto& stored = stateOf<CalendarItemState>(event).stored;
    const EditSpan reach = span == kFutureEvents ? EditSpan::kFutureOccurrences : EditSpan::kThisOccurrence;
    const EventOccurrence saved =
        stored ? changeEvent(context, *stored, draft, reach) : addEvent(context, draft);
    showOccurrence(event, saved, calendarInRow(context.database, saved.calendar).get());
  });
}

bool removeEventFromStore(EKEventStore*, SEL selector, EKEvent* event, NSInteger span, id* error) {
  requireStore(event, selector);
  return change(error, [&](const EditContext& context) {
    const auto& stored = stateOf<CalendarItemState>(event).stored;
    if (!stored) throw DatabaseError("the event was never saved");
    deleteEvent(context, *stored,
                span == kFutureEvents ? EditSpan::kFutureOccurrences : EditSpan::kThisOccurrence);
    forgetOccurrence(event);
  });
}

}  // namespace

ClassDefinition ekEventPredicate() {
  return {.name = "EKEventPredicate", .superclass = "NSPredicate", .state = state<PredicateState>()};
}

ClassDefinition ekEventStore() {
  return {.name = "EKEventStore",
          .superclass = "NSObject",
          .state = state<EventStoreState>(),
          .methods = {
              method("calendars", calendars), method("calendarsForEntityType:", calendarsForEntityType),
              method("calendarWithIdentifier:", calendarWithIdentifier),
              method("defaultCalendarForNewEvents", defaultCalendar),
              method("predicateForEventsWithStartDate:endDate:calendars:", predicateForEvents),
              method("eventsMatchingPredicate:", eventsMatchingPredicate),
              method("eventWithIdentifier:", eventWithIdentifier), method("saveEvent:span:error:", saveEvent),
              method("removeEvent:span:error:", removeEventFromStore)}};
}

}  // namespace phone
