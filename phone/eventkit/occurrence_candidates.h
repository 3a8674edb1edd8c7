// The first half of a search: which events, at which times, overlap a range. The indexes and the rules are
// asked here; the events themselves are not read.
#pragma once

#include <vector>

#include "phone/eventkit/calendar_database.h"

namespace phone {

struct TimeRange {
  /// Instants. The end itself does not belong to the range.
  Seconds start;
  Seconds end;
};

/// One that ends as the range starts does not overlap it; one without length does if it starts within.
constexpr bool overlaps(TimeRange range, Seconds start, Seconds end) {
  return start < range.end && (end > range.start || (start == end && start >= range.start));
}

struct OccurrenceCandidate {
  std::int64_t event;
  /// As the database counts: of an event without a zone, wall times.
  Seconds start;
  Seconds end;
};

/// By event, then start; exceptions from rules are not looked at. A few may lie beside the range, by as much
/// as clocks are put forward or back.
std::vector<OccurrenceCandidate> collectCandidates(CalendarDatabase& database, TimeRange range,
                                                   const EventZone& phoneZone);

}  // namespace phone
