// Rules for the n-th occurrence of each week or day. libical knows positions within months and years only and
// leaves them out of weekly and daily rules without a word.
#pragma once

#include <libical/ical.h>
#include <vector>

#include "phone/eventkit/calendar_time.h"

namespace phone {

constexpr bool choosesByPosition(const icalrecurrencetype& rule) {
  return rule.by_set_pos[0] != ICAL_RECURRENCE_ARRAY_MAX &&
         (rule.freq == ICAL_WEEKLY_RECURRENCE || rule.freq == ICAL_DAILY_RECURRENCE);
}

/// Appends the occurrences that start within [from, to] (wall times), in order, until `starts` holds `limit`.
void appendOccurrencesByPosition(const icalrecurrencetype& rule, Seconds wallStart, Seconds from, Seconds to,
                                 std::size_t limit, std::vector<Seconds>& starts);

}  // namespace phone
