// What an event's row in the database has beside it: its occurrences, rules, and dates.
#pragma once

#include "phone/calendarstore/database/calendar_database.h"
#include "phone/calendarstore/database/event_record.h"
#include "phone/calendarstore/recurrence/recurrence_rule.h"

namespace phone {

/// Everything that the event in that row repeats, and its own occurrence unless tails make it (see
/// series_tail.h). `zoneRow` is the row of its zone.
void insertRepetitions(CalendarDatabase& database, std::int64_t row, const EventRecord& event,
                       std::int64_t zoneRow);
void removeRepetitions(CalendarDatabase& database, std::int64_t row, const EventRecord& event);
void readRepetitions(CalendarDatabase& database, std::int64_t row, EventRecord& event);

/// One occurrence that no rule makes, at times as the event counts.
void insertOccurrence(CalendarDatabase& database, std::int64_t row, const EventRecord& event, Seconds start,
                      Seconds end);
void removeOccurrence(CalendarDatabase& database, std::int64_t row, const EventRecord& event, Seconds start,
                      Seconds end);

/// When the last occurrence of the rule that starts up to that wall time ends, as the event counts; kEndless
/// if there is no such time.
Seconds lastEnd(const EventRecord& event, const RecurrenceRule& rule, Seconds lastWallStart = kEndless);

}  // namespace phone
