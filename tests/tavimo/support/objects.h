// Short forms between C++ values and the phone's objects, for tests.
#pragma once

#include <chrono>
#include <string>

#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"

namespace phone {

/// Borrowed.
inline NSString* text(const std::string& utf8) { return NSString::stringWithUTF8String(utf8.c_str()); }

/// "none" for none.
inline std::string utf8(NSString* text) { return text == nullptr ? "none" : text->UTF8String(); }

/// Borrowed; the time in seconds since 1 January 2001 UTC.
inline NSDate* dateAt(double seconds) { return NSDate::dateWithTimeIntervalSinceReferenceDate(seconds); }

/// Seconds since 1 January 2001 UTC.
constexpr double utc(int year, unsigned month, unsigned day, int hour = 0, int minute = 0, int second = 0) {
  namespace chrono = std::chrono;
  constexpr chrono::sys_days reference = chrono::year(2001) / chrono::January / 1;
  const chrono::sys_days midnight = chrono::year(year) / chrono::month(month) / chrono::day(day);
  const auto days = static_cast<double>((midnight - reference).count());
  return ((days * 24 + hour) * 60 + minute) * 60 + second;
}
static_assert(utc(2014, 3, 7) == 415843200);

}  // namespace phone
