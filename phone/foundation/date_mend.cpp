#include "phone/foundation/date_mend.h"

#include <array>
#include <cctz/civil_time.h>
#include <cmath>
#include <cstdio>

#include "phone/objc/hooking.h"
#include "phone/objc/unknown_selector.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"
#include "platform/foundation/ns_time_zone.h"

namespace phone {

namespace {

/// Beyond it, three billion years away, the calendar's own arithmetic ends.
constexpr double kMaxSeconds = 1e17;

NSInteger secondsFromUniversalTime(NSDate* date) {
  NSTimeZone* const zone = NSTimeZone::defaultTimeZone();
  return zone->secondsFromGMTForDate(date);
}

NSString* description(NSDate* self, SEL) {
  std::array<char, 96> text{};
  const double seconds = self->timeIntervalSinceReferenceDate();
  // Written so that a date that is not a number takes this way, too.
  if (!(std::abs(seconds) <= kMaxSeconds)) {
    std::snprintf(text.data(), text.size(), "%g seconds from 2001-01-01 00:00:00 +0000", seconds);
    return NSString::stringWithUTF8String(text.data());
  }
  const NSInteger offset = secondsFromUniversalTime(self);
  const cctz::civil_second time =
      cctz::civil_second(2001, 1, 1) + static_cast<cctz::diff_t>(std::floor(seconds)) + offset;
  const NSInteger minutes = std::abs(offset) / 60;
  std::snprintf(text.data(), text.size(), "%s%04lld-%02d-%02d %02d:%02d:%02d %c%02ld%02ld",
                time.year() < 0 ? "-" : "", std::abs(static_cast<long long>(time.year())), time.month(),
                time.day(), time.hour(), time.minute(), time.second(), offset < 0 ? '-' : '+', minutes / 60,
                minutes % 60);
  return NSString::stringWithUTF8String(text.data());
}

/// What a format's "%@" asks for; dates look alike in every language here.
NSString* descriptionWithLocale(NSDate* self, SEL selector, NSObject* /*locale*/) {
  return description(self, selector);
}

void replace(const char* selector, IMP replacement) {
  hookMethod(requiredClass("NSDate"), sel_registerName(selector), replacement, nullptr);
}

}  // namespace

void mendDates() {
  static const bool done = [] {
    replace("description", reinterpret_cast<IMP>(description));
    replace("descriptionWithLocale:", reinterpret_cast<IMP>(descriptionWithLocale));
    return true;
  }();
  static_cast<void>(done);
}

}  // namespace phone
