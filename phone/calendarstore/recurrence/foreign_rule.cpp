#include "phone/calendarstore/recurrence/foreign_rule.h"

#include <algorithm>
#include <strings.h>

#include "phone/calendarstore/recurrence/ical_lists.h"
#include "phone/calendarstore/recurrence/ical_owned.h"

namespace phone {

namespace {

/// Years are counted one by one, at up to a millisecond each.
constexpr int kMaxYearsBetween = 20;

}  // namespace

bool isForeign(const icalrecurrencetype& rule) {
  if (rule.rscale == nullptr) return false;
  return ::strcasecmp(rule.rscale, "GREGORIAN") != 0 || rule.skip != ICAL_SKIP_OMIT;
}

bool namesForeignDates(const icalrecurrencetype& rule) {
  const bool isYearly = rule.freq == ICAL_YEARLY_RECURRENCE;
  // Some leap months are centuries apart.
  bool hasRareMonth = false;
  forEachValue(rule.by_month, [&](short value) {
    hasRareMonth =
        hasRareMonth || (icalrecurrencetype_month_is_leap(value) != 0 && rule.skip == ICAL_SKIP_OMIT);
  });
  const int months = isYearly ? 12 * rule.interval : rule.interval;
  return (isYearly || (rule.freq == ICAL_MONTHLY_RECURRENCE && isEmpty(rule.by_month))) && !hasRareMonth &&
         months <= 12 * kMaxYearsBetween && isEmpty(rule.by_day) && isEmpty(rule.by_year_day) &&
         isEmpty(rule.by_week_no) && isEmpty(rule.by_set_pos);
}

bool forEachForeignStart(const icalrecurrencetype& rule, Seconds wallStart, Seconds from, Seconds to,
                         WalkBudget& budget, const UseStart& use) {
  if (!budget.take(kStepsPerForeignDate)) return false;
  const OwnedIterator iterator(icalrecur_iterator_new(rule, icalTime(wallStart)));
  if (iterator == nullptr) return true;
  if (from > wallStart && icalrecur_iterator_set_start(iterator.get(), icalTime(from)) == 0) return true;
  while (budget.take(kStepsPerForeignDate)) {
    const icaltimetype time = icalrecur_iterator_next(iterator.get());
    if (icaltime_is_null_time(time) != 0) return true;
    const Seconds start = wallSeconds(time);
    if (start > to) return true;
    if (start >= from && !use(start)) return false;
  }
  return false;
}

}  // namespace phone
