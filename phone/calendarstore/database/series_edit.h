// Taking an event that repeats apart and moving it, with its exceptions and the events that stand in for its
// repetitions.
#pragma once

#include "phone/calendarstore/database/calendar_database.h"
#include "phone/calendarstore/database/event_record.h"

namespace phone {

/// The name of the repetition that starts then, as the database counts.
RepetitionName repetitionAt(const EventRecord& series, Seconds storedStart);

/// Leaves the series what comes before the repetition that starts then, or that one and what comes after.
/// The start itself is left as it is.
void keepHead(EventRecord& series, Seconds storedStart);
void keepTail(EventRecord& series, Seconds storedStart);

/// Moves what is counted from the start of `series`, after it got another start, length or zone than
/// `before`.
void moveRepetitions(EventRecord& series, const EventRecord& before);

/// Lets the events that stand in for repetitions of `from`, since that one, follow to calendar, uid and start
/// of `to`.
void moveReplacements(CalendarDatabase& database, const EventRecord& from, const EventRecord& to,
                      Seconds storedSince);

/// Removes the events that stand in for repetitions, since that one.
void removeReplacements(CalendarDatabase& database, const EventRecord& series, Seconds storedSince);

}  // namespace phone
