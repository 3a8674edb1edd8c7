// What calendars and clocks on the walls show where the phone is. The calendar is the Gregorian one for all
// times, as in calendar files; Foundation's own goes back to the Julian one before 1582.
#pragma once

#include <cctz/civil_time.h>
#include <string>

class NSDate;

namespace phone {

cctz::civil_second wallClockAt(NSDate* date);

/// In English: "Friday", "March".
std::string weekdayName(const cctz::civil_second& time);
std::string monthName(const cctz::civil_second& time);

/// "09:05"
std::string clockText(const cctz::civil_second& time);

}  // namespace phone
