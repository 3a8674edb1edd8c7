#include "phone/calendarstore/recurrence/day_filter.h"

#include <bit>

#include "phone/calendarstore/recurrence/ical_lists.h"

namespace phone {

namespace {

constexpr std::int64_t kWeek = 7;
constexpr std::int64_t kMonthsAYear = 12;

const cctz::civil_day kDayZero(kReferenceDate);  // A Monday.

std::int64_t floorModulo(std::int64_t value, std::int64_t divisor) {
  const std::int64_t rest = value % divisor;
  return rest < 0 ? rest + divisor : rest;
}

std::int64_t dayNumber(const cctz::civil_day& date) { return date - kDayZero; }

/// Days since Sunday.
int weekdayOf(std::int64_t day) { return static_cast<int>(floorModulo(day + 1, kWeek)); }

template <typename Month>
std::int64_t monthNumber(const Month& month) {
  return month.year() * kMonthsAYear + month.month();
}

}  // namespace

DayFilter::DayFilter(const icalrecurrencetype& rule, Seconds wallStart)
    : frequency_(rule.freq),
      interval_(rule.interval),
      weekOffset_(floorModulo(ICAL_MONDAY_WEEKDAY - rule.week_start, kWeek)),
      startDay_(dayOf(wallStart)) {
  const cctz::civil_day start = kDayZero + startDay_;
  takeLists(rule);
  takeFromStart(start);
  if (frequency_ == ICAL_MONTHLY_RECURRENCE) startPeriod_ = monthNumber(start);
  if (frequency_ == ICAL_YEARLY_RECURRENCE) startPeriod_ = countsWeeks() ? weekYear(startDay_) : start.year();
  const bool stepsWithinMonth =
      interval_ > 1 && (frequency_ == ICAL_DAILY_RECURRENCE || frequency_ == ICAL_WEEKLY_RECURRENCE);
  testsDays_ = stepsWithinMonth || countsWeeks() || !yearDays_.empty() || ordinalsCount_ != Ordinals::kNone;
}

void DayFilter::takeLists(const icalrecurrencetype& rule) {
  bool isNumbered = false;
  forEachValue(rule.by_day, [&](short value) {
    const int weekday = icalrecurrencetype_day_day_of_week(value) - ICAL_SUNDAY_WEEKDAY;
    const int position = icalrecurrencetype_day_position(value);
    weekdays_ |= 1U << weekday;
    ordinals_[weekday].add(position);
    isNumbered = isNumbered || position != 0;
  });
  // A leap month gets a bit that no Gregorian month has.
  forEachValue(rule.by_month, [this](short value) {
    months_ |=
        icalrecurrencetype_month_is_leap(value) != 0 ? 1U : 1U << icalrecurrencetype_month_month(value);
  });
  forEachValue(rule.by_month_day, [this](short value) { monthDays_.add(value); });
  forEachValue(rule.by_year_day, [this](short value) { yearDays_.add(value); });
  forEachValue(rule.by_week_no, [this](short value) { weeks_.add(value); });
  if (!isNumbered) return;
  if (frequency_ == ICAL_MONTHLY_RECURRENCE) ordinalsCount_ = Ordinals::kInMonth;
  if (frequency_ == ICAL_YEARLY_RECURRENCE && !countsWeeks()) {
    ordinalsCount_ = months_ != 0 ? Ordinals::kInMonth : Ordinals::kInYear;
  }
}

/// What the rule does not say, it takes from the day of the first occurrence.
void DayFilter::takeFromStart(const cctz::civil_day& start) {
  if (weekdays_ != 0 || !monthDays_.empty() || !yearDays_.empty()) return;
  const bool isYearly = frequency_ == ICAL_YEARLY_RECURRENCE;
  if (frequency_ == ICAL_WEEKLY_RECURRENCE || (isYearly && countsWeeks())) {
    weekdays_ = 1U << weekdayOf(startDay_);
  } else if (frequency_ == ICAL_MONTHLY_RECURRENCE || isYearly) {
    monthDays_.add(start.day());
    if (isYearly && months_ == 0) months_ = 1U << start.month();
  }
}

cctz::civil_month DayFilter::firstMonthFrom(cctz::civil_month month) const {
  if (frequency_ == ICAL_MONTHLY_RECURRENCE) {
    month += floorModulo(startPeriod_ - monthNumber(month), interval_);
  }
  if (frequency_ == ICAL_YEARLY_RECURRENCE && !countsWeeks() && !isInStep(month.year(), startPeriod_)) {
    month = cctz::civil_month(month.year() + floorModulo(startPeriod_ - month.year(), interval_));
  }
  constexpr std::uint32_t kAllMonths = 0x1FFE;
  const std::uint32_t named = months_ == 0 ? kAllMonths : months_ & kAllMonths;
  if (named == 0) return cctz::civil_month(kLastYear + 1);
  const std::uint32_t later = named >> month.month();
  if (later != 0) return month + std::countr_zero(later);
  return cctz::civil_month(month.year() + 1, std::countr_zero(named));
}

MonthDays DayFilter::daysIn(const cctz::civil_month& month) const {
  if (months_ != 0 && (months_ >> month.month() & 1U) == 0) return 0;
  if (frequency_ == ICAL_MONTHLY_RECURRENCE && !isInStep(monthNumber(month), startPeriod_)) return 0;
  if (frequency_ == ICAL_YEARLY_RECURRENCE && !countsWeeks() && !isInStep(month.year(), startPeriod_))
    return 0;
  const cctz::civil_day first(month);
  const int length = static_cast<int>(cctz::civil_day(month + 1) - first);
  MonthDays days = (MonthDays{2} << length) - 2;
  if (!monthDays_.empty()) {
    auto named = static_cast<MonthDays>(monthDays_.fromStart.to_ulong());
    for (int day = 1; day <= length; ++day) {
      if (monthDays_.fromEnd[static_cast<std::size_t>(length + 1 - day)]) named |= MonthDays{1} << day;
    }
    days &= named;
  }
  const std::int64_t firstNumber = dayNumber(first);
  if (weekdays_ != 0) days &= weekdaysIn(firstNumber);
  if (!testsDays_ || days == 0) return days;
  const std::int64_t newYear = dayNumber(cctz::civil_day(month.year()));
  const auto yearDay = static_cast<int>(firstNumber - newYear) + 1;
  const auto yearLength = static_cast<int>(dayNumber(cctz::civil_day(month.year() + 1)) - newYear);
  for (MonthDays rest = days; rest != 0; rest &= rest - 1) {
    const int day = std::countr_zero(rest);
    if (!matches({firstNumber + day - 1, day, length, yearDay + day - 1, yearLength})) {
      days &= ~(MonthDays{1} << day);
    }
  }
  return days;
}

MonthDays DayFilter::weekdaysIn(std::int64_t firstOfMonth) const {
  constexpr MonthDays kEveryWeek = 0x10204081;
  MonthDays days = 0;
  for (int weekday = weekdayOf(firstOfMonth), day = 1; day <= kWeek; ++day, weekday = (weekday + 1) % 7) {
    if ((weekdays_ >> weekday & 1U) != 0) days |= kEveryWeek << day;
  }
  return days;
}

bool DayFilter::matches(const Day& day) const {
  if (frequency_ == ICAL_DAILY_RECURRENCE && !isInStep(day.number, startDay_)) return false;
  if (frequency_ == ICAL_WEEKLY_RECURRENCE &&
      (weekStart(day.number) - weekStart(startDay_)) % (kWeek * interval_) != 0) {
    return false;
  }
  if (!yearDays_.empty() && !yearDays_.contain(day.ofYear, day.yearLength + 1 - day.ofYear)) return false;
  if (countsWeeks() && !weekMatches(day.number)) return false;
  return ordinalsCount_ == Ordinals::kNone || ordinalMatches(day);
}

bool DayFilter::ordinalMatches(const Day& day) const {
  const bool inMonth = ordinalsCount_ == Ordinals::kInMonth;
  const int place = inMonth ? day.ofMonth : day.ofYear;
  const int length = inMonth ? day.monthLength : day.yearLength;
  const auto& wanted = ordinals_[weekdayOf(day.number)];
  constexpr int kDays = static_cast<int>(kWeek);
  return wanted.fromStart[0] || wanted.contain((place - 1) / kDays + 1, (length - place) / kDays + 1);
}

bool DayFilter::weekMatches(std::int64_t day) const {
  const std::int64_t year = weekYear(day);
  if (frequency_ == ICAL_YEARLY_RECURRENCE && !isInStep(year, startPeriod_)) return false;
  const std::int64_t start = weekStart(day);
  return weeks_.contain((start - firstWeekOf(year)) / kWeek + 1, (firstWeekOf(year + 1) - start) / kWeek);
}

std::int64_t DayFilter::weekStart(std::int64_t day) const {
  return day - floorModulo(day + weekOffset_, kWeek);
}

/// A week counts to the year in which most of its days lie.
std::int64_t DayFilter::weekYear(std::int64_t day) const { return (kDayZero + (weekStart(day) + 3)).year(); }

std::int64_t DayFilter::firstWeekOf(std::int64_t year) const {
  return weekStart(dayNumber(cctz::civil_day(year, 1, 4)));
}

DayRange DayFilter::periodAround(std::int64_t day) const {
  const cctz::civil_day date = kDayZero + day;
  switch (frequency_) {
    case ICAL_WEEKLY_RECURRENCE:
      return {weekStart(day), weekStart(day) + kWeek - 1};
    case ICAL_MONTHLY_RECURRENCE: {
      const cctz::civil_month month(date);
      return {dayNumber(cctz::civil_day(month)), dayNumber(cctz::civil_day(month + 1)) - 1};
    }
    case ICAL_YEARLY_RECURRENCE: {
      // Days around New Year are counted with the year of their week, or the week would fall apart.
      if (countsWeeks()) return {firstWeekOf(weekYear(day)), firstWeekOf(weekYear(day) + 1) - 1};
      const cctz::civil_year year(date);
      return {dayNumber(cctz::civil_day(year)), dayNumber(cctz::civil_day(year + 1)) - 1};
    }
    default:
      return {day, day};
  }
}

}  // namespace phone
