// Times as the command reads and prints them, in the phone's zone. Times are seconds since 1 January 2001
// UTC.
#pragma once

#include <cctz/time_zone.h>
#include <string>

namespace phone {

/// The zone of that IANA name; empty: the one that the variable TZ names, else the system's. Throws
/// UsageError when there is none of that name.
cctz::time_zone zoneNamed(const std::string& name);

/// Reads 2026-03-07T09:00, with or without seconds, alone the day, or with Z or an offset behind it. Without
/// an offset the time is one of that zone. Throws UsageError with the forms that are understood.
double parseTime(const std::string& text, const cctz::time_zone& zone);

/// "2026-03-07T09:00:00+01:00"
std::string isoTime(double time, const cctz::time_zone& zone);

/// "Saturday 7 March 2026, 09:00"
std::string longTime(double time, const cctz::time_zone& zone);

/// "Sat 7 Mar, 10:00 - 11:30", "Sat 7 Mar, all day", "Sat 7 - Sun 8 Mar ...": with the year where it is not
/// the year of `now`.
std::string timeSpan(double start, double end, bool allDay, double now, const cctz::time_zone& zone);

}  // namespace phone
