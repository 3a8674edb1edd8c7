// The first half of a search: which events, at which times, overlap a range. The indexes and the rules are
// asked here; the events themselves are not read.
#pragma once

#include <functional>

#include "phone/calendarstore/database/calendar_database.h"

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

/// A rule gives at most so many occurrences to one search; one for every second would leave no room for
/// others.
inline constexpr std::size_t kMaxOccurrencesOfRule = 1000;

struct OccurrenceCandidate {
  std::int64_t event;
  /// As the database counts: of an event without a zone, wall times.
  Seconds start;
  Seconds end;
  /// Where the event takes the place of a repetition because it changes that one or earlier ones of a series:
  /// the row of the series, and when the repetition would start, as the series counts. Else 0.
  std::int64_t series = 0;
  Seconds repetition = 0;
};

/// What became of a candidate.
enum class Verdict {
  kTaken,
  kPassedOver,
  /// No occurrence of the event is wanted.
  kUnwantedEvent,
  /// No occurrence that starts later is wanted.
  kTooLate
};

/// What a search left out, to keep within bounds.
struct CandidateOmissions {
  /// How many rules gave more than kMaxOccurrencesOfRule occurrences.
  std::size_t cutRules = 0;
  /// Whether some rules cost too much to be followed to the end of the range.
  bool isBudgetSpent = false;
};

/// Hands on what the range has, from several sources one after the other, each by start. A repetition can be
/// named twice; exceptions from rules are not looked at; a few candidates may lie beside the range, by as
/// much as clocks are put forward or back.
CandidateOmissions collectCandidates(CalendarDatabase& database, TimeRange range, const EventZone& phoneZone,
                                     const std::function<Verdict(const OccurrenceCandidate&)>& judge);

}  // namespace phone
