// When an event takes place next.
#pragma once

#include "phone/calendarstore/database/occurrence_query.h"

namespace phone {

/// Of an event that repeats, with the events that stand in for its repetitions: the first occurrence that is
/// not over at the instant `now`; of those that all are over, the last. Of any other event, the event itself.
/// The row must be there. Throws DatabaseError.
EventOccurrence nextOccurrence(CalendarDatabase& database, std::int64_t row, Seconds now,
                               const EventZone& phoneZone);

}  // namespace phone
