#include "phone/eventkit/recurrence_rule.h"

#include <algorithm>

#include "phone/eventkit/day_filter.h"
#include "phone/eventkit/ical_owned.h"
#include "phone/eventkit/position_rule.h"
#include "phone/eventkit/rule_iterator.h"
#include "phone/eventkit/subday_rule.h"

namespace phone {

namespace {

/// Every combination of date and weekday comes round in this time, except for the rarest leap years.
constexpr std::int64_t kDaysUntilDatesRepeat = 28L * 366;

/// The wall time of the rule's last moment. Files write it as an instant, as a wall time or as a whole day.
Seconds wallUntil(const icaltimetype& until, const EventZone* zone) {
  const Seconds seconds = wallSeconds(until);
  if (until.is_date != 0) return seconds + kSecondsPerDay - 1;
  return icaltime_is_utc(until) != 0 && zone != nullptr ? zone->toWall(seconds) : seconds;
}

/// A numbered week without weekdays means the weekday of the start; libical knows only the former.
void nameWeekday(icalrecurrencetype& rule, Seconds wallStart) {
  const bool isWeekOnly =
      rule.by_week_no[0] != ICAL_RECURRENCE_ARRAY_MAX && rule.by_day[0] == ICAL_RECURRENCE_ARRAY_MAX;
  if (!isWeekOnly) return;
  rule.by_day[0] = static_cast<short>(icaltime_day_of_week(icalTime(wallStart)));
  rule.by_day[1] = ICAL_RECURRENCE_ARRAY_MAX;
}

}  // namespace

std::optional<RecurrenceRule> RecurrenceRule::fromFile(icalrecurrencetype rule, Seconds wallStart,
                                                       const EventZone* zone) {
  if (icaltime_is_null_time(rule.until) == 0) rule.until = icalTime(wallUntil(rule.until, zone));
  nameWeekday(rule, wallStart);
  RecurrenceRule read(rule, wallStart);
  if (read.lastStart() < wallStart) return std::nullopt;
  const std::int64_t day = dayOf(wallStart);
  const std::int64_t last = day + kDaysUntilDatesRepeat * std::max<std::int64_t>(rule.interval, 1);
  constexpr std::int64_t kFarthestDay = 3'000'000;  // Beyond the last year.
  if (DayFilter(rule, wallStart).firstWithin(day, std::min(last, kFarthestDay)) >
      std::min(last, kFarthestDay)) {
    return std::nullopt;
  }
  if (rule.count > 0 && !read.endCounted()) return std::nullopt;
  return read;
}

/// Replaces a number of occurrences by the time of the last one. False when only the start is left.
bool RecurrenceRule::endCounted() {
  const int count = rule_.count;
  rule_.count = 0;
  if (count > kLargestCount) return true;
  std::vector<Seconds> starts;
  const auto wanted = static_cast<std::size_t>(count);
  if (repeatsWithinDay(rule_)) {
    // The walk looks at every day on its own, so a rule that hardly ever fits is given up after a while.
    appendSubdayOccurrences(rule_, wallStart_, wallStart_,
                            wallStart_ + kDaysUntilDatesRepeat * kSecondsPerDay, wanted, starts);
  } else if (choosesByPosition(rule_)) {
    appendOccurrencesByPosition(rule_, wallStart_, wallStart_,
                                wallStart_ + kDaysUntilDatesRepeat * kSecondsPerDay, wanted, starts);
  } else {
    RuleIterator iterator(rule_, wallStart_, wallStart_);
    while (starts.size() < wanted) {
      const auto next = iterator.next();
      if (!next) break;
      starts.push_back(*next);
    }
  }
  // The start counts as the first occurrence, also where the rule itself leaves it out.
  if (!starts.empty() && starts.front() != wallStart_ && starts.size() == wanted) starts.pop_back();
  if (starts.empty()) return false;
  rule_.until = icalTime(starts.back());
  return true;
}

RecurrenceRule RecurrenceRule::fromStored(const std::string& text, Seconds wallStart) {
  return {icalrecurrencetype_from_string(text.c_str()), wallStart};
}

std::string RecurrenceRule::text() const {
  icalrecurrencetype copy = rule_;
  const OwnedIcalText text(icalrecurrencetype_as_string_r(&copy));
  return text == nullptr ? "" : text.get();
}

Seconds RecurrenceRule::lastStart() const {
  return icaltime_is_null_time(rule_.until) != 0 ? kEndless : wallSeconds(rule_.until);
}

RecurrenceRule RecurrenceRule::endingBefore(Seconds wall) const {
  RecurrenceRule ended = *this;
  ended.rule_.until = icalTime(std::min(lastStart(), wall - 1));
  return ended;
}

RecurrenceRule RecurrenceRule::shifted(Seconds shift) const {
  RecurrenceRule moved = *this;
  moved.wallStart_ += shift;
  if (lastStart() != kEndless) moved.rule_.until = icalTime(lastStart() + shift);
  return moved;
}

void RecurrenceRule::appendStarts(Seconds from, Seconds to, std::vector<Seconds>& starts) const {
  from = std::max(from, wallStart_);
  to = std::min(to, lastStart());
  if (rule_.freq == ICAL_NO_RECURRENCE || from > to) return;
  const std::size_t limit = starts.size() + kMostOccurrences;
  if (repeatsWithinDay(rule_)) {
    appendSubdayOccurrences(rule_, wallStart_, from, to, limit, starts);
    return;
  }
  const DayFilter filter(rule_, wallStart_);
  const std::int64_t lastDay = dayOf(to);
  const std::int64_t firstDay = filter.firstWithin(dayOf(from), lastDay);
  if (firstDay > lastDay) return;
  if (choosesByPosition(rule_)) {
    appendOccurrencesByPosition(rule_, wallStart_, from, to, limit, starts);
    return;
  }
  RuleIterator iterator(rule_, wallStart_, std::max(wallStart_, firstDay * kSecondsPerDay));
  while (starts.size() < limit) {
    const auto start = iterator.next();
    if (!start || *start > to) return;
    if (*start >= from) starts.push_back(*start);
    // libical works a whole year out to find that the next birthday lies beyond the range.
    if (isOnceADay() && filter.firstWithin(dayOf(*start) + 1, lastDay) > lastDay) return;
  }
}

bool RecurrenceRule::isOnceADay() const {
  return rule_.by_hour[0] == ICAL_RECURRENCE_ARRAY_MAX && rule_.by_minute[0] == ICAL_RECURRENCE_ARRAY_MAX &&
         rule_.by_second[0] == ICAL_RECURRENCE_ARRAY_MAX;
}

}  // namespace phone
