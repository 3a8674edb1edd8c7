#include "phone/calendarstore/database/occurrence_candidates.h"

#include <algorithm>
#include <set>

#include "phone/calendarstore/database/occurrence_bucket.h"
#include "phone/calendarstore/database/series_length.h"
#include "phone/calendarstore/recurrence/recurrence_rule.h"

namespace phone {

namespace {

/// What all rules together may cost: some tenths of a second.
constexpr std::int64_t kMaxSteps = 1'000'000;

/// What a rule gets even then. It is enough for an ordinary one: one bad file must not hide the others.
constexpr std::int64_t kStepsInAnyCase = 50;

/// Finding out when the clocks of a zone change that a file defines takes a tenth of a millisecond, and as
/// much again for reading it; of so many zones at most.
constexpr std::size_t kMaxDefinedZones = 100;

/// The wall times that a clock in the zone can show during the range. Clocks go back by three hours at most.
TimeRange wallRange(const EventZone& zone, TimeRange range) {
  constexpr Seconds kLargestStepBack = 3L * 3600;
  return {std::min(zone.toWall(range.start), zone.toWall(range.start + kLargestStepBack) - kLargestStepBack),
          std::max(zone.toWall(range.end), zone.toWall(range.end - kLargestStepBack) + kLargestStepBack)};
}

class CandidateSearch {
 public:
  CandidateSearch(CalendarDatabase& database, TimeRange range, const EventZone& phoneZone,
                  const std::function<Verdict(const OccurrenceCandidate&)>& judge)
      : database_(database), range_(range), phoneRange_(wallRange(phoneZone, range)), judge_(judge) {}

  CandidateOmissions run() {
    for (int length = 0; length < kBucketLengths; ++length) {
      const Seconds longest = length + 1 < kBucketLengths ? longestInBucket(length) : kEndless;
      collectListed(bucketOf(false, length), longest, range_);
      collectListed(bucketOf(true, length), longest, phoneRange_);
    }
    collectRepeating();
    collectTails();
    return omissions_;
  }

 private:
  void collectListed(std::int64_t bucket, Seconds longest, TimeRange range) {
    Statement& query = database_.prepared(
        "SELECT event, start, end FROM occurrence WHERE bucket = ?1 AND start >= ?2 AND start < ?3 "
        "ORDER BY start");
    const StatementScope scope(query);
    query.bind(1, bucket).bind(2, range.start - longest).bind(3, range.end);
    while (query.step()) {
      const OccurrenceCandidate candidate{query.integer(0), query.integer(1), query.integer(2)};
      if (!overlaps(range, candidate.start, candidate.end)) continue;
      if (judge_(candidate) == Verdict::kTooLate) return;
    }
  }

  void collectRepeating() {
    // Wall times and instants differ by a day at most; what is too much here falls out below.
    Statement& query = database_.prepared(
        "SELECT event, start, duration, zone, rule FROM series WHERE last_end >= ?1 AND start < ?2");
    const StatementScope scope(query);
    query.bind(1, range_.start - kSecondsPerDay).bind(2, range_.end + kSecondsPerDay);
    while (query.step()) {
      const EventZone* const zone = database_.zone(query.integer(3));
      if (!mayUse(zone)) continue;
      collectSeries(query.integer(0), query.integer(1), SeriesLength::fromStored(query.integer(2)), zone,
                    query.text(4));
    }
  }

  bool mayUse(const EventZone* zone) {
    if (zone == nullptr || zone->definition().empty() || definedZones_.contains(zone)) return true;
    if (definedZones_.size() == kMaxDefinedZones) {
      omissions_.isBudgetSpent = true;
      return false;
    }
    definedZones_.insert(zone);
    return true;
  }

  void collectSeries(std::int64_t event, Seconds start, SeriesLength length, const EventZone* zone,
                     const std::string& text) {
    const TimeRange wall = wallRangeOf(zone, length);
    follow(text, zone == nullptr ? start : zone->toWall(start), wall, [&](Seconds wallStart) {
      const Seconds stored = zone == nullptr ? wallStart : zone->toInstant(wallStart);
      return judge_({event, stored, length.endAfter(stored, zone)});
    });
  }

  void collectTails() {
    Statement& query = database_.prepared(
        "SELECT event, zone, duration, base, base_zone, base_wall_start, rule, first, last, shift FROM tail "
        "WHERE last_end >= ?1 AND start < ?2");
    const StatementScope scope(query);
    query.bind(1, range_.start - kSecondsPerDay).bind(2, range_.end + kSecondsPerDay);
    while (query.step()) collectTail(query);
  }

  void collectTail(Statement& tail) {
    const std::int64_t event = tail.integer(0);
    const EventZone* const zone = database_.zone(tail.integer(1));
    const Seconds duration = tail.integer(2);
    const std::int64_t series = tail.integer(3);
    const EventZone* const seriesZone = database_.zone(tail.integer(4));
    const Seconds shift = tail.integer(9);
    const auto propose = [&](Seconds wallStart) {
      const Seconds stored = zone == nullptr ? wallStart + shift : zone->toInstant(wallStart + shift);
      const Seconds repetition = seriesZone == nullptr ? wallStart : seriesZone->toInstant(wallStart);
      return judge_({event, stored, stored + duration, series, repetition});
    };
    const TimeRange wall = wallRangeOf(zone, {0, duration});
    const TimeRange asked{std::max(wall.start - shift, tail.integer(7)),
                          std::min(wall.end - shift, tail.integer(8))};
    if (const std::string rule = tail.text(6); !rule.empty()) {
      follow(rule, tail.integer(5), asked, propose);
    } else if (asked.start <= asked.end) {
      propose(asked.start);
    }
  }

  /// The wall times at which an occurrence of that length may start. What ends just as the range starts is
  /// not asked for.
  TimeRange wallRangeOf(const EventZone* zone, SeriesLength length) const {
    const Seconds ahead = std::max<Seconds>(length.longest() - 1, 0);
    return zone == nullptr ? TimeRange{phoneRange_.start - ahead, phoneRange_.end}
                           : wallRange(*zone, {range_.start - ahead, range_.end});
  }

  /// Proposes the starts of a rule within the wall times until there are enough.
  template <typename Propose>
  void follow(const std::string& text, Seconds wallStart, TimeRange wall, Propose propose) {
    std::size_t taken = 0;
    bool isEnough = false;
    const auto useStart = [&](Seconds start) {
      const Verdict verdict = propose(start);
      if (verdict == Verdict::kTaken && ++taken == kMaxOccurrencesOfRule) ++omissions_.cutRules;
      isEnough = verdict == Verdict::kTooLate || verdict == Verdict::kUnwantedEvent ||
                 taken == kMaxOccurrencesOfRule;
      return !isEnough;
    };
    WalkBudget share(kStepsInAnyCase);
    const bool wasWalked =
        RecurrenceRule::fromStored(text, wallStart)
            .forEachStart(wall.start, wall.end, budget_.isSpent() ? share : budget_, useStart);
    if (!wasWalked && !isEnough) omissions_.isBudgetSpent = true;
  }

  CalendarDatabase& database_;
  TimeRange range_;
  TimeRange phoneRange_;
  const std::function<Verdict(const OccurrenceCandidate&)>& judge_;
  WalkBudget budget_{kMaxSteps};
  std::set<const EventZone*> definedZones_;
  CandidateOmissions omissions_;
};

}  // namespace

CandidateOmissions collectCandidates(CalendarDatabase& database, TimeRange range, const EventZone& phoneZone,
                                     const std::function<Verdict(const OccurrenceCandidate&)>& judge) {
  return CandidateSearch(database, range, phoneZone, judge).run();
}

}  // namespace phone
