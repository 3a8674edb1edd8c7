// Occurrences of rules that repeat within a day: every so many hours, minutes or seconds. libical walks such
// rules step by step until one fits, at two microseconds a step: a rule for every second of each January
// would keep a phone busy for a minute at every load in February. Here each day is looked at on its own.
#pragma once

#include <libical/ical.h>
#include <vector>

#include "phone/eventkit/calendar_time.h"

namespace phone {

constexpr bool repeatsWithinDay(const icalrecurrencetype& rule) {
  return rule.freq == ICAL_HOURLY_RECURRENCE || rule.freq == ICAL_MINUTELY_RECURRENCE ||
         rule.freq == ICAL_SECONDLY_RECURRENCE;
}

/// Appends the occurrences that start within [from, to] (wall times), in order, until `starts` holds `limit`.
void appendSubdayOccurrences(const icalrecurrencetype& rule, Seconds wallStart, Seconds from, Seconds to,
                             std::size_t limit, std::vector<Seconds>& starts);

}  // namespace phone
