// Rules that count in another calendar than the Gregorian one (RSCALE), such as a birthday in the Chinese
// calendar. These are libical's: it knows the calendars, and its walk is right for plain dates.
#pragma once

#include <libical/ical.h>

#include "phone/calendarstore/recurrence/recurrence_walk.h"

namespace phone {

/// A date in the Chinese calendar takes a millisecond, which is as long as so many steps of our own.
inline constexpr std::int64_t kStepsPerForeignDate = 20'000;

/// Whether the rule counts in such a calendar, or skips days that do not exist in a way that only libical
/// knows.
bool isForeign(const icalrecurrencetype& rule);

/// Whether the rule names plain dates: every so many months or years, one or more days of a month. For
/// anything else libical may search for minutes.
bool namesForeignDates(const icalrecurrencetype& rule);

/// As RecurrenceWalk::forEach(), for a rule that namesForeignDates().
bool forEachForeignStart(const icalrecurrencetype& rule, Seconds wallStart, Seconds from, Seconds to,
                         WalkBudget& budget, const UseStart& use);

}  // namespace phone
