// What calendars and clocks on the walls show where the phone is. The calendar is the Gregorian one for all
// times, as in calendar files; Foundation's own goes back to the Julian one before 1582.
#pragma once

#include <cctz/civil_time.h>
#include <cctz/time_zone.h>
#include <string>

class NSDate;

namespace phone {

/// Clocks of the standard library count nanoseconds, in which a time of another century has no room.
using WholeSeconds = cctz::time_point<cctz::seconds>;

/// The instant so many seconds after the reference date, rounded down: the last moment of a second still
/// belongs to it. What lies more than three million years away, where no calendar makes sense, is cut off
/// there, and no number at all is the reference date.
WholeSeconds wholeSeconds(double sinceReferenceDate);

cctz::civil_second wallClockAt(NSDate* date);

/// In English: "Friday", "March".
std::string weekdayName(const cctz::civil_second& time);
std::string monthName(const cctz::civil_second& time);

/// "09:05"
std::string clockText(const cctz::civil_second& time);

}  // namespace phone
