#include "phone/calendarstore/recurrence/recurrence_rule.h"

#include <algorithm>

#include "phone/calendarstore/recurrence/foreign_rule.h"
#include "phone/calendarstore/recurrence/ical_lists.h"
#include "phone/calendarstore/recurrence/ical_owned.h"

namespace phone {

namespace {

/// A number of occurrences is looked for this far. It is a millisecond at most, and enough for any rule that
/// fits now and then.
constexpr std::int64_t kMaxStepsToEnd = 50'000;

/// The Gregorian calendar repeats itself after so many years: what has not ended by then is as good as
/// endless, and what has not occurred never will.
constexpr Seconds kMaxTimeToEnd = 146'097 * kSecondsPerDay;

/// In other calendars, where a step is a thousand times as long, and nobody lives to see more.
constexpr int kMaxForeignCount = 100;

/// The wall time of the rule's last moment. Files write it as an instant, as a wall time or as a whole day.
Seconds wallUntil(const icaltimetype& until, const EventZone& zone) {
  const Seconds seconds = wallSeconds(until);
  if (until.is_date != 0) return seconds + kSecondsPerDay - 1;
  return icaltime_is_utc(until) != 0 ? zone.toWall(seconds) : seconds;
}

bool isWithinDay(const icalrecurrencetype& rule) {
  return rule.freq == ICAL_HOURLY_RECURRENCE || rule.freq == ICAL_MINUTELY_RECURRENCE ||
         rule.freq == ICAL_SECONDLY_RECURRENCE;
}

}  // namespace

RecurrenceRule::RecurrenceRule(const icalrecurrencetype& rule, Seconds wallStart)
    : rule_(rule), wallStart_(wallStart) {
  rule_.rscale = nullptr;
  if (isForeign(rule)) calendar_ = rule.rscale;
}

std::optional<RecurrenceRule> RecurrenceRule::fromFile(const icalrecurrencetype& rule, const RuleStart& start,
                                                       WalkBudget& toEnds) {
  RecurrenceRule read(rule, start.wall);
  if (icaltime_is_null_time(rule.until) == 0) {
    read.endAt(wallUntil(rule.until, start.zone));
  }
  if (start.isAllDay) {
    if (isWithinDay(rule)) return std::nullopt;
    clear(read.rule_.by_hour);
    clear(read.rule_.by_minute);
    clear(read.rule_.by_second);
  }
  if (read.lastStart() < start.wall) return std::nullopt;
  if (read.countsInForeignCalendar() && !namesForeignDates(rule)) return std::nullopt;
  if (rule.count > 0 && !read.endCounted(toEnds)) return std::nullopt;
  return read;
}

/// Replaces a number of occurrences by the time of the last one. False when only the start is left.
bool RecurrenceRule::endCounted(WalkBudget& toEnds) {
  const int named = rule_.count;
  rule_.count = 0;
  if (named > (countsInForeignCalendar() ? kMaxForeignCount : kMaxCount)) return true;
  if (toEnds.isSpent()) return true;
  // The start counts as the first occurrence, also where the rule itself leaves it out.
  int left = named - 1;
  Seconds last = wallStart_;
  const std::int64_t share = countsInForeignCalendar() ? (named + 2) * kStepsPerForeignDate : kMaxStepsToEnd;
  WalkBudget budget(share);
  const auto count = [&](Seconds start) {
    last = start;
    return --left > 0;
  };
  const bool isEndless = left > 0 && forEachStart(wallStart_ + 1, wallStart_ + kMaxTimeToEnd, budget, count);
  toEnds.take(share - budget.left());
  if (!isEndless) endAt(last);
  return last > wallStart_;
}

RecurrenceRule RecurrenceRule::fromStored(const std::string& text, Seconds wallStart) {
  const icalrecurrencetype parsed = icalrecurrencetype_from_string(text.c_str());
  const OwnedIcalText calendar(parsed.rscale);
  return {parsed, wallStart};
}

void RecurrenceRule::endAt(Seconds wall) { rule_.until = icalTime(std::min(wall, kLastWallTime)); }

/// The rule as libical takes it; the calendar's name is borrowed.
icalrecurrencetype RecurrenceRule::parsed() const {
  icalrecurrencetype rule = rule_;
  if (countsInForeignCalendar()) rule.rscale = const_cast<char*>(calendar_.c_str());
  return rule;
}

std::string RecurrenceRule::text() const {
  icalrecurrencetype rule = parsed();
  const OwnedIcalText text(icalrecurrencetype_as_string_r(&rule));
  return text == nullptr ? "" : text.get();
}

Seconds RecurrenceRule::lastStart() const {
  return icaltime_is_null_time(rule_.until) != 0 ? kEndless : wallSeconds(rule_.until);
}

RecurrenceRule RecurrenceRule::endingBefore(Seconds wall) const {
  RecurrenceRule ended = *this;
  ended.endAt(std::min(lastStart(), wall - 1));
  return ended;
}

RecurrenceRule RecurrenceRule::shifted(Seconds shift) const {
  RecurrenceRule moved = *this;
  moved.wallStart_ += shift;
  if (lastStart() != kEndless) moved.endAt(lastStart() + shift);
  return moved;
}

bool RecurrenceRule::forEachStart(Seconds from, Seconds to, WalkBudget& budget, const UseStart& use) const {
  from = std::max(from, wallStart_);
  to = std::min({to, lastStart(), kLastWallTime});
  if (rule_.freq == ICAL_NO_RECURRENCE || from > to) return true;
  if (countsInForeignCalendar()) return forEachForeignStart(parsed(), wallStart_, from, to, budget, use);
  return RecurrenceWalk(rule_, wallStart_).forEach(from, to, budget, use);
}

}  // namespace phone
