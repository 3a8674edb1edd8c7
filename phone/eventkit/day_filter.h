// Which days a recurrence rule can fall on. Asking libical for the next occurrence costs tens of microseconds
// for a rule that matches and up to half a second for one that never does, so the query asks here first.
#pragma once

#include <cstdint>
#include <libical/ical.h>
#include <vector>

#include "phone/eventkit/calendar_time.h"

namespace phone {

class DayFilter {
 public:
  DayFilter(const icalrecurrencetype& rule, Seconds wallStart);

  /// False when no occurrence of the rule can start on that day (dayOf()). For rules that repeat within a
  /// day, the answer is exact; for the others true means "ask libical".
  bool mayFallOn(std::int64_t day) const;
  /// The first such day within [first, last], or last + 1.
  std::int64_t firstWithin(std::int64_t first, std::int64_t last) const;

 private:
  void takeLists(const icalrecurrencetype& rule);
  void takeFromStart(const icalrecurrencetype& rule, const cctz::civil_day& start);
  bool ordinalMatches(std::int64_t day, const cctz::civil_day& date) const;
  bool intervalMatches(std::int64_t day, const cctz::civil_day& date) const;

  bool open_ = false;  // Nothing is known about the rule; every day may do.
  icalrecurrencetype_frequency frequency_;
  std::int64_t interval_;
  bool yearIsKnown_;
  std::int64_t startDay_;
  std::int64_t startWeek_;
  std::int64_t startMonth_;
  std::int64_t weekOffset_;
  // Bit masks; an empty one allows everything. Bit 0 of the weekdays is Sunday, the others count from bit 1.
  std::uint32_t weekdays_ = 0;
  std::uint32_t months_ = 0;
  std::uint32_t monthDays_ = 0;
  std::uint32_t monthDaysFromEnd_ = 0;
  std::vector<int> yearDays_;
  /// Weekdays that are counted within the month, such as the last Friday; empty if there is none.
  struct Ordinal {
    int weekday;
    int position;  // From 1, or from -1 backwards; 0: every one.
  };
  std::vector<Ordinal> ordinals_;
};

}  // namespace phone
