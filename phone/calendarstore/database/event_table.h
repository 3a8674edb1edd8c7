// Events in the database: writing, reading and removing one with everything that belongs to it.
#pragma once

#include <optional>

#include "phone/calendarstore/database/calendar_database.h"
#include "phone/calendarstore/database/event_record.h"

namespace phone {

/// Which repetition an event stands in for, as its row says it in replaces_kind and replaces_value, and back.
int storedKind(const std::optional<ReplacedRepetition>& replaces);
std::optional<ReplacedRepetition> replacedRepetition(std::int64_t storedKind, Seconds value);

/// Adds the event and gives its row; none when the calendar has one of that uid (and replaced repetition)
/// already. `zoneRow` is the row of the event's zone.
std::optional<std::int64_t> insertEvent(CalendarDatabase& database, const EventRecord& event,
                                        std::int64_t zoneRow);
std::optional<std::int64_t> insertEvent(CalendarDatabase& database, const EventRecord& event);

/// Puts the event in the place of the one in that row.
void replaceEvent(CalendarDatabase& database, std::int64_t row, const EventRecord& event);

/// Removes the row's event alone, not those that stand in for its repetitions.
void removeEvent(CalendarDatabase& database, std::int64_t row);

/// The row of the event, or none.
std::optional<std::int64_t> findEvent(CalendarDatabase& database, std::int64_t calendar, std::string_view uid,
                                      const std::optional<ReplacedRepetition>& replaces);

/// The rows of the events that stand in for repetitions of the one with that uid.
std::vector<std::int64_t> replacingEvents(CalendarDatabase& database, std::int64_t calendar,
                                          std::string_view uid);

/// Everything about the event in that row, which must be there.
EventRecord readEvent(CalendarDatabase& database, std::int64_t row);

}  // namespace phone
