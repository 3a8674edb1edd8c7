#include "phone/eventkit/occurrence_candidates.h"

#include <algorithm>
#include <tuple>

#include "phone/eventkit/occurrence_bucket.h"
#include "phone/eventkit/recurrence_rule.h"

namespace phone {

namespace {

/// The wall times that a clock in the zone can show during the range. Clocks go back by three hours at most.
TimeRange wallRange(const EventZone& zone, TimeRange range) {
  constexpr Seconds kLargestStepBack = 3L * 3600;
  return {std::min(zone.toWall(range.start), zone.toWall(range.start + kLargestStepBack) - kLargestStepBack),
          std::max(zone.toWall(range.end), zone.toWall(range.end - kLargestStepBack) + kLargestStepBack)};
}

class CandidateSearch {
 public:
  CandidateSearch(CalendarDatabase& database, TimeRange range, const EventZone& phoneZone)
      : database_(database), range_(range), phoneRange_(wallRange(phoneZone, range)) {}

  std::vector<OccurrenceCandidate> run() {
    for (int length = 0; length < kBucketLengths; ++length) {
      const Seconds longest = length + 1 < kBucketLengths ? longestInBucket(length) : kEndless;
      collectListed(bucketOf(false, length), longest, range_);
      collectListed(bucketOf(true, length), longest, phoneRange_);
    }
    collectRepeating();
    std::sort(found_.begin(), found_.end(), [](const auto& left, const auto& right) {
      return std::tie(left.event, left.start) < std::tie(right.event, right.start);
    });
    // A repetition can be named twice: as the start and by the rule, by two rules, by a rule and a date.
    const auto last = std::unique(found_.begin(), found_.end(), [](const auto& left, const auto& right) {
      return left.event == right.event && left.start == right.start;
    });
    found_.erase(last, found_.end());
    return std::move(found_);
  }

 private:
  void collectListed(std::int64_t bucket, Seconds longest, TimeRange range) {
    Statement& query = database_.prepared(
        "SELECT event, start, end FROM occurrence WHERE bucket = ?1 AND start >= ?2 AND start < ?3");
    const StatementScope scope(query);
    query.bind(1, bucket).bind(2, range.start - longest).bind(3, range.end);
    while (query.step()) {
      const OccurrenceCandidate candidate{query.integer(0), query.integer(1), query.integer(2)};
      if (overlaps(range, candidate.start, candidate.end)) found_.push_back(candidate);
    }
  }

  void collectRepeating() {
    // Wall times and instants differ by a day at most; what is too much here falls out below.
    Statement& query = database_.prepared(
        "SELECT event, start, duration, zone, rule FROM series WHERE last_end >= ?1 AND start < ?2");
    const StatementScope scope(query);
    query.bind(1, range_.start - kSecondsPerDay).bind(2, range_.end + kSecondsPerDay);
    while (query.step()) {
      collectSeries(query.integer(0), query.integer(1), query.integer(2), database_.zone(query.integer(3)),
                    query.text(4));
    }
  }

  void collectSeries(std::int64_t event, Seconds start, Seconds duration, const EventZone* zone,
                     const std::string& rule) {
    // What ends just as the range starts must not count towards the limit.
    const Seconds ahead = std::max<Seconds>(duration - 1, 0);
    const TimeRange wall = zone == nullptr ? TimeRange{phoneRange_.start - ahead, phoneRange_.end}
                                           : wallRange(*zone, {range_.start - ahead, range_.end});
    starts_.clear();
    RecurrenceRule::fromStored(rule, zone == nullptr ? start : zone->toWall(start))
        .appendStarts(wall.start, wall.end, starts_);
    for (const Seconds wallStart : starts_) {
      const Seconds stored = zone == nullptr ? wallStart : zone->toInstant(wallStart);
      found_.push_back({event, stored, stored + duration});
    }
  }

  CalendarDatabase& database_;
  TimeRange range_;
  TimeRange phoneRange_;
  std::vector<OccurrenceCandidate> found_;
  std::vector<Seconds> starts_;
};

}  // namespace

std::vector<OccurrenceCandidate> collectCandidates(CalendarDatabase& database, TimeRange range,
                                                   const EventZone& phoneZone) {
  return CandidateSearch(database, range, phoneZone).run();
}

}  // namespace phone
