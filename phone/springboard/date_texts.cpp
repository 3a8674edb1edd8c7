#include "phone/springboard/date_texts.h"

#include <string>

#include "phone/foundation/wall_clock.h"
#include "platform/bulletinboard/bb_bulletin.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"

namespace phone {

namespace {

NSString* text(const std::string& utf8) { return NSString::stringWithUTF8String(utf8.c_str()); }

/// "9:41"
std::string shortClockText(const cctz::civil_second& time) {
  const std::string clock = clockText(time);
  return clock.starts_with('0') ? clock.substr(1) : clock;
}

/// A day ahead as seen from today, short enough to stand before a time. Empty for today and earlier days.
std::string dayAhead(const cctz::civil_second& time, const cctz::civil_second& now, bool isAlone) {
  const cctz::diff_t distance = cctz::civil_day(time) - cctz::civil_day(now);
  if (distance <= 0) return {};
  if (distance == 1) return "Tomorrow";
  constexpr std::size_t kShort = 3;
  constexpr int kWeek = 7;
  if (distance < kWeek) return isAlone ? weekdayName(time) : weekdayName(time).substr(0, kShort);
  return monthName(time).substr(0, kShort) + " " + std::to_string(time.day());
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
  const cctz::civil_second start = wallClockAt(bulletin->date());
  const bool isAllDay = bulletin->dateIsAllDay();
  const std::string day = dayAhead(start, wallClockAt(now), isAllDay);
  if (isAllDay) return day.empty() ? "All day" : day;
  if (bulletin->date()->compare(now) <= 0) return "Now";
  return (day.empty() ? "" : day + " ") + shortClockText(start);
}

}  // namespace

NSString* clockText(NSDate* date) { return text(shortClockText(wallClockAt(date))); }

NSString* todayText(NSDate* date) {
  const cctz::civil_second time = wallClockAt(date);
  return text(weekdayName(time) + ", " + monthName(time) + " " + std::to_string(time.day()));
}

NSString* relevanceText(BBBulletin* bulletin) {
  NSDate* const date = bulletin->date();
  if (date == nullptr) return nullptr;
  NSDate* const now = NSDate::date();
  if (bulletin->endDate() != nullptr) return text(timeAheadText(bulletin, now));
  return text(ageText(now->timeIntervalSinceReferenceDate() - date->timeIntervalSinceReferenceDate()));
}

}  // namespace phone
