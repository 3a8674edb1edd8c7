#include "phone/calendarstore/recurrence/recurrence_walk.h"

#include <algorithm>
#include <bit>

#include "phone/calendarstore/recurrence/ical_lists.h"

namespace phone {

namespace {

constexpr Seconds kMinute = 60;
constexpr Seconds kHour = 3600;

const cctz::civil_day kDayZero(kReferenceDate);

Seconds timeOfDay(Seconds wall) { return wall - dayOf(wall) * kSecondsPerDay; }

Seconds unitOf(icalrecurrencetype_frequency frequency) {
  switch (frequency) {
    case ICAL_SECONDLY_RECURRENCE:
      return 1;
    case ICAL_MINUTELY_RECURRENCE:
      return kMinute;
    case ICAL_HOURLY_RECURRENCE:
      return kHour;
    default:
      return kSecondsPerDay;
  }
}

/// The list's numbers, each once, or what the rule means without a list.
template <std::size_t Size>
ClockNumbers numbersOr(const short (&list)[Size], int count, ClockNumbers otherwise) {
  ClockNumbers numbers = 0;
  // A leap second is written as the 60th; clocks here have none.
  forEachValue(list, [&](short value) { numbers |= clockNumber(std::clamp<Seconds>(value, 0, count - 1)); });
  return numbers == 0 ? otherwise : numbers;
}

/// Where a rule does not name a part of the time: whatever the steps count through is free, and smaller parts
/// are those of the start.
TimesOfDay timesOf(const icalrecurrencetype& rule, Seconds unit, Seconds start) {
  const bool isStep = unit < kSecondsPerDay;
  const ClockNumbers minutes = isStep ? allBelow(60) : clockNumber(start / kMinute % 60);
  const ClockNumbers seconds = isStep ? allBelow(60) : clockNumber(start % kMinute);
  return {numbersOr(rule.by_hour, 24, isStep ? allBelow(24) : clockNumber(start / kHour)),
          isStep && unit > kMinute ? clockNumber(0) : numbersOr(rule.by_minute, 60, minutes),
          isStep && unit > 1 ? clockNumber(0) : numbersOr(rule.by_second, 60, seconds)};
}

TimesOfDay offsetsOf(const icalrecurrencetype& rule, Seconds unit, Seconds start) {
  return {clockNumber(0),
          unit > kMinute ? numbersOr(rule.by_minute, 60, clockNumber(start / kMinute % 60)) : clockNumber(0),
          unit > 1 ? numbersOr(rule.by_second, 60, clockNumber(start % kMinute)) : clockNumber(0)};
}

}  // namespace

RecurrenceWalk::RecurrenceWalk(const icalrecurrencetype& rule, Seconds wallStart)
    : days_(rule, wallStart),
      start_(wallStart),
      unit_(unitOf(rule.freq)),
      step_(unit_ * rule.interval),
      times_(timesOf(rule, unit_, timeOfDay(wallStart))),
      offsets_(offsetsOf(rule, unit_, timeOfDay(wallStart))) {
  forEachValue(rule.by_set_pos, [this](short value) { positions_.push_back(value); });
}

bool RecurrenceWalk::forEach(Seconds from, Seconds to, WalkBudget& budget, const UseStart& use) const {
  const Request request{std::max(from, start_), to, budget, use};
  if (request.from > to) return true;
  if (!positions_.empty() && !repeatsWithinDay()) return usePositions(request);
  return forEachDay({dayOf(request.from), dayOf(to)}, budget, [&](std::int64_t day) {
    return repeatsWithinDay() ? useStepsOn(day, request) : useTimesOn(day, request);
  });
}

template <typename UseDay>
bool RecurrenceWalk::forEachDay(DayRange range, WalkBudget& budget, UseDay use) const {
  for (cctz::civil_month month(kDayZero + range.first);; ++month) {
    month = days_.firstMonthFrom(month);
    const std::int64_t dayBefore = cctz::civil_day(month) - kDayZero - 1;
    if (dayBefore >= range.last) return true;
    if (!budget.take()) return false;
    MonthDays days = days_.daysIn(month);
    if (range.first > dayBefore) days &= ~MonthDays{0} << (range.first - dayBefore);
    for (; days != 0; days &= days - 1) {
      const std::int64_t day = dayBefore + std::countr_zero(days);
      if (day > range.last) return true;
      if (!use(day)) return false;
    }
  }
}

bool RecurrenceWalk::useTimesOn(std::int64_t day, const Request& request) const {
  const Seconds midnight = day * kSecondsPerDay;
  for (std::int64_t index = times_.firstFrom(request.from - midnight); index < times_.size(); ++index) {
    const Seconds start = midnight + times_.at(index);
    if (start > request.to) return true;
    if (!request.budget.take() || !request.use(start)) return false;
  }
  return true;
}

bool RecurrenceWalk::useStepsOn(std::int64_t day, const Request& request) const {
  const Seconds midnight = day * kSecondsPerDay;
  // Steps are whole units: from 9:30 on, "every two hours" steps through 9, 11, 13...
  const Seconds firstStep = start_ - timeOfDay(start_) % unit_;
  const Seconds from = std::max(midnight, request.from - timeOfDay(request.from) % unit_);
  const Seconds to = std::min(midnight + kSecondsPerDay - 1, request.to);
  // Whichever is rarer is walked through: the steps, or the times that the rule lets pass.
  if (kSecondsPerDay / step_ < times_.size()) {
    for (Seconds step = from + (step_ - (from - firstStep) % step_) % step_; step <= to; step += step_) {
      if (!request.budget.take()) return false;
      if (times_.contain(step - midnight) && !useWithinStep(step, request)) return false;
    }
    return true;
  }
  for (std::int64_t index = times_.firstFrom(from - midnight); index < times_.size(); ++index) {
    const Seconds step = midnight + times_.at(index);
    if (step > to) return true;
    if (!request.budget.take()) return false;
    if ((step - firstStep) % step_ == 0 && !useWithinStep(step, request)) return false;
  }
  return true;
}

bool RecurrenceWalk::useWithinStep(Seconds step, const Request& request) const {
  const auto useOffset = [&](std::int64_t index) {
    const Seconds start = step + offsets_.at(index);
    if (start < request.from || start > request.to) return true;
    return request.budget.take() && request.use(start);
  };
  if (!positions_.empty()) {
    const auto indexes = positionsIn(offsets_.size());
    return std::all_of(indexes.begin(), indexes.end(), useOffset);
  }
  for (std::int64_t index = offsets_.firstFrom(request.from - step); index < offsets_.size(); ++index) {
    if (!useOffset(index)) return false;
  }
  return true;
}

/// Positions need the whole period, also where the range begins or ends within it, or the answer would depend
/// on the range.
bool RecurrenceWalk::usePositions(const Request& request) const {
  const std::int64_t lastDay = dayOf(request.to);
  std::vector<std::int64_t> days;
  for (DayRange period = days_.periodAround(dayOf(request.from));;) {
    days.clear();
    const bool isWhole = forEachDay(period, request.budget, [&days](std::int64_t day) {
      days.push_back(day);
      return true;
    });
    if (!isWhole) return false;
    for (const std::int64_t index : positionsIn(static_cast<std::int64_t>(days.size()) * times_.size())) {
      const std::int64_t day = days[static_cast<std::size_t>(index / times_.size())];
      const Seconds start = day * kSecondsPerDay + times_.at(index % times_.size());
      if (start > request.to) return true;
      if (!request.budget.take()) return false;
      if (start >= request.from && !request.use(start)) return false;
    }
    std::int64_t next = lastDay + 1;
    const DayRange rest{period.last + 1, lastDay};
    const bool isLast = forEachDay(rest, request.budget, [&next](std::int64_t day) {
      next = day;
      return false;
    });
    if (next > lastDay) return isLast;
    period = days_.periodAround(next);
  }
}

/// The indexes that the rule chooses from a set of so many, in order, each once.
std::vector<std::int64_t> RecurrenceWalk::positionsIn(std::int64_t setSize) const {
  std::vector<std::int64_t> indexes;
  for (const std::int64_t position : positions_) {
    const std::int64_t index = position > 0 ? position - 1 : setSize + position;
    if (index >= 0 && index < setSize) indexes.push_back(index);
  }
  std::sort(indexes.begin(), indexes.end());
  indexes.erase(std::unique(indexes.begin(), indexes.end()), indexes.end());
  return indexes;
}

}  // namespace phone
