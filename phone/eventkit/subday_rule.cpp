#include "phone/eventkit/subday_rule.h"

#include <algorithm>

#include "phone/eventkit/day_filter.h"

namespace phone {

namespace {

constexpr Seconds kMinute = 60;
constexpr Seconds kHour = 3600;

/// A rule that hardly ever fits is given up after so many steps: a few hundredths of a second.
constexpr std::int64_t kMostSteps = 2'000'000;

template <std::size_t Size>
bool allows(const short (&list)[Size], Seconds value) {
  if (list[0] == ICAL_RECURRENCE_ARRAY_MAX) return true;
  for (const short entry : list) {
    if (entry == ICAL_RECURRENCE_ARRAY_MAX) return false;
    if (entry == value) return true;
  }
  return false;
}

/// The list's values in order, or the one that the rule takes from its start.
template <std::size_t Size>
std::vector<Seconds> valuesOr(const short (&list)[Size], Seconds otherwise) {
  std::vector<Seconds> values;
  for (const short entry : list) {
    if (entry == ICAL_RECURRENCE_ARRAY_MAX) break;
    values.push_back(entry);
  }
  if (values.empty()) values.push_back(otherwise);
  std::sort(values.begin(), values.end());
  return values;
}

class SubdayWalk {
 public:
  SubdayWalk(const icalrecurrencetype& rule, Seconds wallStart)
      : rule_(rule), start_(wallStart), filter_(rule, wallStart) {
    unit_ = rule.freq == ICAL_HOURLY_RECURRENCE ? kHour : rule.freq == ICAL_MINUTELY_RECURRENCE ? kMinute : 1;
    step_ = unit_ * std::max<Seconds>(rule.interval, 1);
    // Steps are counted in whole units: 9:30 and "every two hours" step through 9, 11, 13...
    firstStep_ = wallStart - floorModulo(wallStart, unit_);
    const Seconds within = floorModulo(wallStart, kHour);
    minutes_ = valuesOr(rule.by_minute, within / kMinute);
    seconds_ = valuesOr(rule.by_second, within % kMinute);
  }

  void append(Seconds from, Seconds to, std::size_t limit, std::vector<Seconds>& starts) const {
    from = std::max(from, start_);
    const std::int64_t lastDay = dayOf(to);
    std::int64_t stepsLeft = kMostSteps;
    std::int64_t day = filter_.firstWithin(dayOf(from), lastDay);
    while (day <= lastDay && starts.size() < limit && stepsLeft > 0) {
      const Seconds end = std::min((day + 1) * kSecondsPerDay - 1, to);
      for (Seconds step = firstStepFrom(std::max(day * kSecondsPerDay, from - unit_ + 1));
           step <= end && starts.size() < limit; step += step_, --stepsLeft) {
        if (fits(step)) appendWithin(step, from, to, limit, starts);
      }
      day = filter_.firstWithin(day + 1, lastDay);
    }
  }

 private:
  static Seconds floorModulo(Seconds value, Seconds divisor) {
    const Seconds rest = value % divisor;
    return rest < 0 ? rest + divisor : rest;
  }

  Seconds firstStepFrom(Seconds wall) const {
    if (wall <= firstStep_) return firstStep_;
    return wall + floorModulo(firstStep_ - wall, step_);
  }

  /// Whether the parts of the time that the steps count through are among those that the rule allows.
  bool fits(Seconds step) const {
    const Seconds ofDay = floorModulo(step, kSecondsPerDay);
    return allows(rule_.by_hour, ofDay / kHour) &&
           (unit_ > kMinute || allows(rule_.by_minute, ofDay % kHour / kMinute)) &&
           (unit_ > 1 || allows(rule_.by_second, ofDay % kMinute));
  }

  void appendWithin(Seconds step, Seconds from, Seconds to, std::size_t limit,
                    std::vector<Seconds>& starts) const {
    std::vector<Seconds> set;
    if (unit_ == 1) {
      set.push_back(step);
    } else if (unit_ == kMinute) {
      for (const Seconds second : seconds_) set.push_back(step + second);
    } else {
      for (const Seconds minute : minutes_) {
        for (const Seconds second : seconds_) set.push_back(step + minute * kMinute + second);
      }
    }
    const auto size = static_cast<Seconds>(set.size());
    for (Seconds position = 1; position <= size && starts.size() < limit; ++position) {
      const Seconds start = set[static_cast<std::size_t>(position - 1)];
      if (start < from || start > to) continue;
      const bool chosen = rule_.by_set_pos[0] == ICAL_RECURRENCE_ARRAY_MAX ||
                          allows(rule_.by_set_pos, position) || allows(rule_.by_set_pos, position - size - 1);
      if (chosen) starts.push_back(start);
    }
  }

  const icalrecurrencetype& rule_;
  Seconds start_;
  DayFilter filter_;
  Seconds unit_;
  Seconds step_;
  Seconds firstStep_;
  std::vector<Seconds> minutes_;
  std::vector<Seconds> seconds_;
};

}  // namespace

void appendSubdayOccurrences(const icalrecurrencetype& rule, Seconds wallStart, Seconds from, Seconds to,
                             std::size_t limit, std::vector<Seconds>& starts) {
  SubdayWalk(rule, wallStart).append(from, to, limit, starts);
}

}  // namespace phone
