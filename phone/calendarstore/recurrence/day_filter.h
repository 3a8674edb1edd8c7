// The days that a recurrence rule falls on, month by month. Everything that a rule says about days is a test
// of the day itself, so no walk from the start of the series is needed to know whether one belongs to it.
#pragma once

#include <bitset>
#include <cctz/civil_time.h>
#include <cstdint>
#include <libical/ical.h>

#include "phone/calendarstore/recurrence/calendar_time.h"

namespace phone {

/// Days as dayOf() counts them, both ends included.
struct DayRange {
  std::int64_t first;
  std::int64_t last;
};

/// A set of days of one month; bit 1 is its first day.
using MonthDays = std::uint32_t;

/// For rules in the Gregorian calendar. A part that a frequency has no use for in the standard, such as the
/// days of the year in a monthly rule, narrows the rule down like any other; a weekday that is numbered where
/// nothing is counted, as in a weekly rule, stands for the plain one.
class DayFilter {
 public:
  DayFilter(const icalrecurrencetype& rule, Seconds wallStart);

  /// The first month, from that one on, in which there can be any. Beyond kLastYear: none.
  cctz::civil_month firstMonthFrom(cctz::civil_month month) const;

  /// The days of the month on which occurrences start if every position is chosen; days before the start of
  /// the series among them.
  MonthDays daysIn(const cctz::civil_month& month) const;

  /// The day, week, month or year around the day in which the rule counts positions.
  DayRange periodAround(std::int64_t day) const;

 private:
  /// Numbers counted from the start and from the end, as bits; both empty: no such part.
  template <std::size_t Size>
  struct Numbers {
    std::bitset<Size> fromStart;
    std::bitset<Size> fromEnd;

    void add(int number) {
      const auto place = static_cast<std::size_t>(number < 0 ? -number : number);
      if (place < Size) (number < 0 ? fromEnd : fromStart).set(place);
    }
    bool empty() const { return fromStart.none() && fromEnd.none(); }
    bool contain(std::int64_t start, std::int64_t end) const {
      return fromStart[static_cast<std::size_t>(start)] || fromEnd[static_cast<std::size_t>(end)];
    }
  };

  /// A day with what the parts of a rule ask about it.
  struct Day {
    std::int64_t number;
    int ofMonth;
    int monthLength;
    int ofYear;
    int yearLength;
  };

  void takeLists(const icalrecurrencetype& rule);
  void takeFromStart(const cctz::civil_day& start);
  MonthDays weekdaysIn(std::int64_t firstOfMonth) const;
  bool matches(const Day& day) const;
  bool ordinalMatches(const Day& day) const;
  bool weekMatches(std::int64_t day) const;
  bool isInStep(std::int64_t period, std::int64_t startPeriod) const {
    return (period - startPeriod) % interval_ == 0;
  }
  std::int64_t weekStart(std::int64_t day) const;
  std::int64_t weekYear(std::int64_t day) const;
  std::int64_t firstWeekOf(std::int64_t year) const;
  bool countsWeeks() const { return !weeks_.empty(); }

  icalrecurrencetype_frequency frequency_;
  std::int64_t interval_;
  std::int64_t weekOffset_;
  std::int64_t startDay_;
  /// The month or year of the start, in the rule's own way of counting.
  std::int64_t startPeriod_ = 0;
  std::uint32_t weekdays_ = 0;  // Bit 0 is Sunday; none: every day.
  std::uint32_t months_ = 0;    // Bits 1 to 12; none: every month.
  Numbers<32> monthDays_;
  Numbers<367> yearDays_;
  Numbers<54> weeks_;
  /// Which ones of each weekday are meant, counted in the month or year; bit 0: every one.
  Numbers<54> ordinals_[7];
  enum class Ordinals { kNone, kInMonth, kInYear };
  Ordinals ordinalsCount_ = Ordinals::kNone;
  bool testsDays_ = false;
};

}  // namespace phone
