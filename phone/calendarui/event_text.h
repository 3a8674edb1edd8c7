// How the calendar's screens write dates and times, in the phone's time zone.
#pragma once

#include <string>
#include <vector>

class EKEvent;
class NSDate;

namespace phone {

/// "Friday, Mar 7, 2014"; empty for none.
std::string dayText(NSDate* date);

/// "Fri, Mar 7, 2014  17:00", or the day alone for an all-day event; empty for none.
std::string momentText(NSDate* date, bool allDay);

/// The lines under an event's title: one day with its hours, or from one day to another.
std::vector<std::string> spanLines(EKEvent* event);

}  // namespace phone
