#include "phone/eventkit/day_filter.h"

#include <algorithm>

namespace phone {

namespace {

constexpr std::int64_t kWeek = 7;
constexpr std::int64_t kMonthsAYear = 12;

const cctz::civil_day kDayZero(kReferenceDate);  // A Monday.

std::int64_t floorDivide(std::int64_t value, std::int64_t divisor) {
  return (value >= 0 ? value : value - (divisor - 1)) / divisor;
}

std::int64_t floorModulo(std::int64_t value, std::int64_t divisor) {
  return value - floorDivide(value, divisor) * divisor;
}

/// Days since Sunday.
int weekdayOf(std::int64_t day) { return static_cast<int>(floorModulo(day + 1, kWeek)); }

std::int64_t monthNumber(const cctz::civil_day& date) { return date.year() * kMonthsAYear + date.month(); }

int daysInMonth(const cctz::civil_day& date) {
  return static_cast<int>(cctz::civil_day(cctz::civil_month(date) + 1) -
                          cctz::civil_day(cctz::civil_month(date)));
}

int daysInYear(const cctz::civil_day& date) {
  return static_cast<int>(cctz::civil_day(date.year() + 1) - cctz::civil_day(date.year()));
}

template <std::size_t Size, typename Use>
void forEachValue(const short (&list)[Size], Use use) {
  for (const short value : list) {
    if (value == ICAL_RECURRENCE_ARRAY_MAX) return;
    use(value);
  }
}

}  // namespace

DayFilter::DayFilter(const icalrecurrencetype& rule, Seconds wallStart)
    : open_(rule.rscale != nullptr),
      frequency_(rule.freq),
      interval_(std::max<std::int64_t>(rule.interval, 1)),
      // Days of a numbered week can lie in the year before or after the one that the week counts to.
      yearIsKnown_(rule.by_week_no[0] == ICAL_RECURRENCE_ARRAY_MAX),
      startDay_(dayOf(wallStart)),
      weekOffset_(floorModulo(ICAL_MONDAY_WEEKDAY - rule.week_start, kWeek)) {
  const cctz::civil_day start = kDayZero + startDay_;
  startWeek_ = floorDivide(startDay_ + weekOffset_, kWeek);
  startMonth_ = monthNumber(start);
  takeLists(rule);
  takeFromStart(rule, start);
}

void DayFilter::takeLists(const icalrecurrencetype& rule) {
  forEachValue(rule.by_day, [this](short value) {
    const int weekday = icalrecurrencetype_day_day_of_week(value) - ICAL_SUNDAY_WEEKDAY;
    weekdays_ |= 1U << weekday;
    ordinals_.push_back({weekday, icalrecurrencetype_day_position(value)});
  });
  forEachValue(rule.by_month,
               [this](short value) { months_ |= 1U << icalrecurrencetype_month_month(value); });
  forEachValue(rule.by_month_day, [this](short value) {
    (value > 0 ? monthDays_ : monthDaysFromEnd_) |= 1U << (value > 0 ? value : -value);
  });
  forEachValue(rule.by_year_day, [this](short value) { yearDays_.push_back(value); });
}

/// What the rule does not say, it takes from the day of the first occurrence.
void DayFilter::takeFromStart(const icalrecurrencetype& rule, const cctz::civil_day& start) {
  const bool countsInMonth = frequency_ == ICAL_MONTHLY_RECURRENCE ||
                             (frequency_ == ICAL_YEARLY_RECURRENCE && months_ != 0 && yearIsKnown_);
  if (!countsInMonth) ordinals_.clear();
  const bool namesDays = weekdays_ != 0 || monthDays_ != 0 || monthDaysFromEnd_ != 0 || !yearDays_.empty() ||
                         rule.by_week_no[0] != ICAL_RECURRENCE_ARRAY_MAX;
  if (namesDays) return;
  if (frequency_ == ICAL_WEEKLY_RECURRENCE) weekdays_ = 1U << weekdayOf(startDay_);
  if (frequency_ == ICAL_MONTHLY_RECURRENCE || frequency_ == ICAL_YEARLY_RECURRENCE) {
    monthDays_ = 1U << start.day();
  }
  if (frequency_ == ICAL_YEARLY_RECURRENCE && months_ == 0) months_ = 1U << start.month();
}

bool DayFilter::ordinalMatches(std::int64_t day, const cctz::civil_day& date) const {
  if (ordinals_.empty()) return true;
  const int weekday = weekdayOf(day);
  const int fromStart = (date.day() - 1) / 7 + 1;
  const int fromEnd = -((daysInMonth(date) - date.day()) / 7 + 1);
  return std::any_of(ordinals_.begin(), ordinals_.end(), [&](const Ordinal& ordinal) {
    return ordinal.weekday == weekday &&
           (ordinal.position == 0 || ordinal.position == fromStart || ordinal.position == fromEnd);
  });
}

bool DayFilter::intervalMatches(std::int64_t day, const cctz::civil_day& date) const {
  if (interval_ == 1) return true;
  switch (frequency_) {
    case ICAL_DAILY_RECURRENCE:
      return (day - startDay_) % interval_ == 0;
    case ICAL_WEEKLY_RECURRENCE:
      return (floorDivide(day + weekOffset_, kWeek) - startWeek_) % interval_ == 0;
    case ICAL_MONTHLY_RECURRENCE:
      return (monthNumber(date) - startMonth_) % interval_ == 0;
    case ICAL_YEARLY_RECURRENCE:
      return !yearIsKnown_ ||
             (floorDivide(monthNumber(date) - 1, kMonthsAYear) - floorDivide(startMonth_ - 1, kMonthsAYear)) %
                     interval_ ==
                 0;
    default:
      return true;
  }
}

bool DayFilter::mayFallOn(std::int64_t day) const {
  if (open_) return true;
  if (weekdays_ != 0 && (weekdays_ >> weekdayOf(day) & 1U) == 0) return false;
  const cctz::civil_day date = kDayZero + day;
  if (months_ != 0 && (months_ >> date.month() & 1U) == 0) return false;
  if (monthDays_ != 0 || monthDaysFromEnd_ != 0) {
    const int fromEnd = daysInMonth(date) - date.day() + 1;
    if (((monthDays_ >> date.day() | monthDaysFromEnd_ >> fromEnd) & 1U) == 0) return false;
  }
  if (!yearDays_.empty()) {
    const int yearDay = cctz::get_yearday(date);
    const int fromEnd = yearDay - daysInYear(date) - 1;
    if (std::none_of(yearDays_.begin(), yearDays_.end(),
                     [&](int wanted) { return wanted == yearDay || wanted == fromEnd; })) {
      return false;
    }
  }
  return ordinalMatches(day, date) && intervalMatches(day, date);
}

std::int64_t DayFilter::firstWithin(std::int64_t first, std::int64_t last) const {
  while (first <= last && !mayFallOn(first)) ++first;
  return first;
}

}  // namespace phone
