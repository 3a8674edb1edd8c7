#include "phone/app/local_time.h"

#include "phone/app/usage_error.h"
#include "phone/calendarstore/recurrence/calendar_time.h"
#include "phone/foundation/wall_clock.h"

namespace phone {

namespace {

using Microseconds = cctz::time_point<std::chrono::microseconds>;

cctz::civil_second civil(double time, const cctz::time_zone& zone) {
  return cctz::convert(wholeSeconds(time), zone);
}

/// "Sat 7 Mar", with the year where it differs.
std::string shortDay(const cctz::civil_second& time, const cctz::civil_second& now) {
  std::string day =
      weekdayName(time).substr(0, 3) + " " + std::to_string(time.day()) + " " + monthName(time).substr(0, 3);
  if (time.year() != now.year()) day += " " + std::to_string(time.year());
  return day;
}

}  // namespace

cctz::time_zone zoneNamed(const std::string& name) {
  if (name.empty()) return cctz::local_time_zone();
  cctz::time_zone zone;
  if (!cctz::load_time_zone(name, &zone)) {
    throw UsageError("there is no time zone \"" + name + "\"; use a name such as Europe/Berlin");
  }
  return zone;
}

double parseTime(const std::string& text, const cctz::time_zone& zone) {
  for (const char* day :
       {"%Y-%m-%d", "%Y-%m-%dT%H:%M", "%Y-%m-%dT%H:%M:%E*S", "%Y-%m-%d %H:%M", "%Y-%m-%d %H:%M:%E*S"}) {
    for (const char* offset : {"", "%Ez"}) {
      Microseconds time;
      if (!cctz::parse(std::string(day) + offset, text, zone, &time)) continue;
      const double seconds = std::chrono::duration<double>(time - wholeSeconds(0)).count();
      const auto year = civil(seconds, zone).year();
      if (year >= kFirstYear && year <= kLastYear) return seconds;
      throw UsageError("\"" + text + "\" lies outside the years " + std::to_string(kFirstYear) + " to " +
                       std::to_string(kLastYear) + ", which are all that the calendar has");
    }
  }
  throw UsageError(
      "\"" + text +
      "\" is no time; write 2026-03-07T09:00, and Z or an offset such as +01:00 behind it for a time that "
      "is not one of the phone's zone");
}

std::string isoTime(double time, const cctz::time_zone& zone) {
  const WholeSeconds moment = wholeSeconds(time);
  // Before there were zones, clocks went by the sun, to the second.
  const bool hasSeconds = zone.lookup(moment).offset % 60 != 0;
  return cctz::format(hasSeconds ? "%E4Y-%m-%dT%H:%M:%S%E*z" : "%E4Y-%m-%dT%H:%M:%S%Ez", moment, zone);
}

std::string longTime(double time, const cctz::time_zone& zone) {
  const cctz::civil_second at = civil(time, zone);
  return weekdayName(at) + " " + std::to_string(at.day()) + " " + monthName(at) + " " +
         std::to_string(at.year()) + ", " + clockText(at);
}

std::string timeSpan(double start, double end, bool allDay, double now, const cctz::time_zone& zone) {
  const cctz::civil_second from = civil(start, zone);
  const cctz::civil_second to = civil(end, zone);
  const cctz::civil_second present = civil(now, zone);
  const bool oneDay = cctz::civil_day(from) == cctz::civil_day(to) || to < from;
  const std::string firstDay = shortDay(from, present);
  if (allDay) return firstDay + (oneDay ? "" : " - " + shortDay(to, present)) + ", all day";
  std::string begin = firstDay + ", " + clockText(from);
  if (to <= from) return begin;
  return begin + " - " + (oneDay ? "" : shortDay(to, present) + ", ") + clockText(to);
}

}  // namespace phone
