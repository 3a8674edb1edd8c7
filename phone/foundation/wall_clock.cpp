#include "phone/foundation/wall_clock.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"
#include "platform/foundation/ns_time_zone.h"

namespace phone {

namespace {

constexpr std::array<const char*, 7> kWeekdays{"Monday", "Tuesday",  "Wednesday", "Thursday",
                                               "Friday", "Saturday", "Sunday"};
constexpr std::array<const char*, 12> kMonths{"January",   "February", "March",    "April",
                                              "May",       "June",     "July",     "August",
                                              "September", "October",  "November", "December"};

cctz::time_zone defaultZone() {
  NSTimeZone* const zone = NSTimeZone::defaultTimeZone();
  NSString* const name = zone->name();
  cctz::time_zone found = cctz::utc_time_zone();
  if (name != nullptr) cctz::load_time_zone(name->UTF8String(), &found);
  return found;
}

std::string twoDigits(int number) { return (number < 10 ? "0" : "") + std::to_string(number); }

}  // namespace

WholeSeconds wholeSeconds(double sinceReferenceDate) {
  constexpr double kMaxSeconds = 1e14;
  static const WholeSeconds kReferenceDate = cctz::convert(cctz::civil_second(2001), cctz::utc_time_zone());
  const double within =
      std::isnan(sinceReferenceDate) ? 0 : std::clamp(sinceReferenceDate, -kMaxSeconds, kMaxSeconds);
  return kReferenceDate + cctz::seconds(static_cast<std::int64_t>(std::floor(within)));
}

cctz::civil_second wallClockAt(NSDate* date) {
  return cctz::convert(wholeSeconds(date->timeIntervalSinceReferenceDate()), defaultZone());
}

std::string weekdayName(const cctz::civil_second& time) {
  return kWeekdays.at(static_cast<std::size_t>(cctz::get_weekday(cctz::civil_day(time))));
}

std::string monthName(const cctz::civil_second& time) {
  return kMonths.at(static_cast<std::size_t>(time.month() - 1));
}

std::string clockText(const cctz::civil_second& time) {
  return twoDigits(time.hour()) + ":" + twoDigits(time.minute());
}

}  // namespace phone
