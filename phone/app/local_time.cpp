#include "phone/app/local_time.h"

#include <array>
#include <chrono>
#include <cmath>

#include "phone/app/wrong_use.h"

namespace phone {

namespace {

using Clock = std::chrono::system_clock;

const Clock::time_point kReferenceDate = Clock::from_time_t(978'307'200);

constexpr std::array<const char*, 7> kWeekdays{"Monday", "Tuesday",  "Wednesday", "Thursday",
                                               "Friday", "Saturday", "Sunday"};
constexpr std::array<const char*, 12> kMonths{"January",   "February", "March",    "April",
                                              "May",       "June",     "July",     "August",
                                              "September", "October",  "November", "December"};

Clock::time_point timePoint(double time) {
  return kReferenceDate + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(time));
}

cctz::civil_second civil(double time, const cctz::time_zone& zone) {
  // Rounded down: the last second of a day still belongs to it.
  return cctz::convert(timePoint(std::floor(time)), zone);
}

std::string weekday(const cctz::civil_second& time) {
  return kWeekdays.at(static_cast<std::size_t>(cctz::get_weekday(cctz::civil_day(time))));
}

std::string month(const cctz::civil_second& time) {
  return kMonths.at(static_cast<std::size_t>(time.month() - 1));
}

std::string twoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

std::string clockTime(const cctz::civil_second& time) {
  return twoDigits(time.hour()) + ":" + twoDigits(time.minute());
}

/// "Sat 7 Mar", with the year where it differs.
std::string shortDay(const cctz::civil_second& time, const cctz::civil_second& now) {
  std::string day =
      weekday(time).substr(0, 3) + " " + std::to_string(time.day()) + " " + month(time).substr(0, 3);
  if (time.year() != now.year()) day += " " + std::to_string(time.year());
  return day;
}

}  // namespace

cctz::time_zone zoneNamed(const std::string& name) {
  if (name.empty()) return cctz::local_time_zone();
  cctz::time_zone zone;
  if (!cctz::load_time_zone(name, &zone)) {
    throw WrongUse("there is no time zone \"" + name + "\"; use a name such as Europe/Berlin");
  }
  return zone;
}

double parseTime(const std::string& text, const cctz::time_zone& zone) {
  for (const char* day :
       {"%Y-%m-%d", "%Y-%m-%dT%H:%M", "%Y-%m-%dT%H:%M:%E*S", "%Y-%m-%d %H:%M", "%Y-%m-%d %H:%M:%E*S"}) {
    for (const char* offset : {"", "%Ez"}) {
      std::chrono::time_point<Clock, std::chrono::microseconds> time;
      if (!cctz::parse(std::string(day) + offset, text, zone, &time)) continue;
      return std::chrono::duration<double>(time - kReferenceDate).count();
    }
  }
  throw WrongUse(
      "\"" + text +
      "\" is no time; write 2026-03-07T09:00, and Z or an offset such as +01:00 behind it for a time that "
      "is not one of the phone's zone");
}

std::string isoTime(double time, const cctz::time_zone& zone) {
  return cctz::format("%Y-%m-%dT%H:%M:%S%Ez", timePoint(std::floor(time)), zone);
}

std::string longTime(double time, const cctz::time_zone& zone) {
  const cctz::civil_second at = civil(time, zone);
  return weekday(at) + " " + std::to_string(at.day()) + " " + month(at) + " " + std::to_string(at.year()) +
         ", " + clockTime(at);
}

std::string timeSpan(double start, double end, bool allDay, double now, const cctz::time_zone& zone) {
  const cctz::civil_second from = civil(start, zone);
  const cctz::civil_second to = civil(end, zone);
  const cctz::civil_second present = civil(now, zone);
  const bool oneDay = cctz::civil_day(from) == cctz::civil_day(to) || to < from;
  const std::string firstDay = shortDay(from, present);
  if (allDay) return firstDay + (oneDay ? "" : " - " + shortDay(to, present)) + ", all day";
  std::string begin = firstDay + ", " + clockTime(from);
  if (to <= from) return begin;
  return begin + " - " + (oneDay ? "" : shortDay(to, present) + ", ") + clockTime(to);
}

}  // namespace phone
