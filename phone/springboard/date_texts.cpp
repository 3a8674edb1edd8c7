#include "phone/springboard/date_texts.h"

#include <array>
#include <chrono>
#include <string>

#include "platform/bulletinboard/bb_bulletin.h"
#include "platform/foundation/ns_calendar.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_date_components.h"
#include "platform/foundation/ns_string.h"

namespace phone {

namespace {

constexpr std::array kWeekdays = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                                  "Thursday", "Friday", "Saturday"};
constexpr std::array kMonths = {"January", "February", "March",     "April",   "May",      "June",
                                "July",    "August",   "September", "October", "November", "December"};

NSString* text(const std::string& utf8) { return NSString::stringWithUTF8String(utf8.c_str()); }

/// A time in the user's time zone.
struct LocalTime {
  std::chrono::sys_days day;
  unsigned month;
  unsigned dayOfMonth;
  std::string clock;

  std::string weekday() const { return kWeekdays[std::chrono::weekday(day).c_encoding()]; }
  std::string monthName() const { return kMonths[month - 1]; }
};

LocalTime localTime(NSDate* date) {
  constexpr NSUInteger kParts =
      NSCalendar::kYear | NSCalendar::kMonth | NSCalendar::kDay | NSCalendar::kHour | NSCalendar::kMinute;
  NSDateComponents* const parts = NSCalendar::currentCalendar()->components(kParts, date);
  const auto month = static_cast<unsigned>(parts->month());
  const auto day = static_cast<unsigned>(parts->day());
  const std::chrono::year_month_day calendarDay(std::chrono::year(static_cast<int>(parts->year())),
                                                std::chrono::month(month), std::chrono::day(day));
  const std::string minute = std::to_string(parts->minute());
  return {calendarDay, month, day, std::to_string(parts->hour()) + (minute.size() < 2 ? ":0" : ":") + minute};
}

/// A day ahead as seen from today, short enough to stand before a time. Empty for today and earlier days.
std::string dayAhead(const LocalTime& day, const LocalTime& today, bool isAlone) {
  const auto distance = (day.day - today.day).count();
  if (distance <= 0) return {};
  if (distance == 1) return "Tomorrow";
  constexpr std::size_t kShort = 3;
  constexpr int kWeek = 7;
  if (distance < kWeek) return isAlone ? day.weekday() : day.weekday().substr(0, kShort);
  return day.monthName().substr(0, kShort) + " " + std::to_string(day.dayOfMonth);
}

std::string ageText(double seconds) {
  constexpr double kMinute = 60;
  constexpr double kHour = 60 * kMinute;
  constexpr double kDay = 24 * kHour;
  const auto count = [seconds](double unit) { return std::to_string(static_cast<long>(seconds / unit)); };
  if (seconds < kMinute) return "now";
  if (seconds < kHour) return count(kMinute) + "m ago";
  if (seconds < kDay) return count(kHour) + "h ago";
  return count(kDay) + "d ago";
}

std::string timeAheadText(BBBulletin* bulletin, NSDate* now) {
  const LocalTime start = localTime(bulletin->date());
  const bool isAllDay = bulletin->dateIsAllDay();
  const std::string day = dayAhead(start, localTime(now), isAllDay);
  if (isAllDay) return day.empty() ? "All day" : day;
  if (bulletin->date()->compare(now) <= 0) return "Now";
  return day.empty() ? start.clock : day + " " + start.clock;
}

}  // namespace

NSString* clockText(NSDate* date) { return text(localTime(date).clock); }

NSString* dayText(NSDate* date) {
  const LocalTime time = localTime(date);
  return text(time.weekday() + ", " + time.monthName() + " " + std::to_string(time.dayOfMonth));
}

NSString* relevanceText(BBBulletin* bulletin) {
  NSDate* const date = bulletin->date();
  if (date == nullptr) return nullptr;
  NSDate* const now = NSDate::date();
  if (bulletin->endDate() != nullptr) return text(timeAheadText(bulletin, now));
  return text(ageText(now->timeIntervalSinceReferenceDate() - date->timeIntervalSinceReferenceDate()));
}

}  // namespace phone
