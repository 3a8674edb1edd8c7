#include "phone/eventkit/position_rule.h"

#include <algorithm>

#include "phone/eventkit/rule_iterator.h"

namespace phone {

namespace {

/// The week or day that positions are counted in, as its first day.
std::int64_t periodOf(const icalrecurrencetype& rule, Seconds wall) {
  const std::int64_t day = dayOf(wall);
  if (rule.freq == ICAL_DAILY_RECURRENCE) return day;
  constexpr int kWeek = 7;
  const int weekday = icaltime_day_of_week(icalTime(wall));
  return day - (weekday - rule.week_start + kWeek) % kWeek;
}

template <std::size_t Size>
void setIfEmpty(short (&list)[Size], int value) {
  if (list[0] != ICAL_RECURRENCE_ARRAY_MAX) return;
  list[0] = static_cast<short>(value);
  list[1] = ICAL_RECURRENCE_ARRAY_MAX;
}

/// The rule without positions, with everything named that it takes from its start. So it can be started at
/// the beginning of a period.
icalrecurrencetype withoutPositions(icalrecurrencetype rule, Seconds wallStart) {
  const icaltimetype start = icalTime(wallStart);
  rule.by_set_pos[0] = ICAL_RECURRENCE_ARRAY_MAX;
  rule.until = icaltime_null_time();
  setIfEmpty(rule.by_hour, start.hour);
  setIfEmpty(rule.by_minute, start.minute);
  setIfEmpty(rule.by_second, start.second);
  if (rule.freq == ICAL_WEEKLY_RECURRENCE) setIfEmpty(rule.by_day, icaltime_day_of_week(start));
  return rule;
}

bool isChosen(const icalrecurrencetype& rule, int position, int size) {
  for (const short wanted : rule.by_set_pos) {
    if (wanted == ICAL_RECURRENCE_ARRAY_MAX) return false;
    if (wanted == position || wanted == position - size - 1) return true;
  }
  return false;
}

}  // namespace

void appendOccurrencesByPosition(const icalrecurrencetype& rule, Seconds wallStart, Seconds from, Seconds to,
                                 std::size_t limit, std::vector<Seconds>& starts) {
  from = std::max(from, wallStart);
  // Whole periods are walked through, from before the range to beyond it, so that the positions are right.
  RuleIterator iterator(withoutPositions(rule, wallStart), periodOf(rule, wallStart) * kSecondsPerDay,
                        periodOf(rule, from) * kSecondsPerDay);
  const std::int64_t lastPeriod = periodOf(rule, to);
  std::vector<Seconds> set;
  const auto chooseFromSet = [&] {
    const int size = static_cast<int>(set.size());
    for (int position = 1; position <= size && starts.size() < limit; ++position) {
      const Seconds start = set[static_cast<std::size_t>(position - 1)];
      if (start >= from && start <= to && isChosen(rule, position, size)) starts.push_back(start);
    }
    set.clear();
  };
  while (starts.size() < limit) {
    const auto next = iterator.next();
    if (!set.empty() && (!next || periodOf(rule, *next) != periodOf(rule, set.front()))) chooseFromSet();
    if (!next || periodOf(rule, *next) > lastPeriod) return;
    set.push_back(*next);
  }
}

}  // namespace phone
