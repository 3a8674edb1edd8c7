// Times of the calendar store. Instants and wall times are both plain counts of seconds; which of the two a
// variable holds is in its name or comment.
#pragma once

#include <cctz/civil_time.h>
#include <cstdint>

namespace phone {

/// An instant: seconds since 1 January 2001 00:00:00 UTC. Or a wall time: the seconds that a clock on a wall
/// would have counted since it showed that date and time, without regard to where the wall stands.
using Seconds = std::int64_t;

inline constexpr Seconds kSecondsPerDay = 86'400;

/// The years that the store keeps times of; everything outside is refused or cut off.
inline constexpr int kFirstYear = 1;
inline constexpr int kLastYear = 9999;

inline constexpr cctz::civil_second kReferenceDate{2001, 1, 1};

constexpr Seconds wallSeconds(const cctz::civil_second& civil) { return civil - kReferenceDate; }
inline cctz::civil_second civilTime(Seconds wall) { return kReferenceDate + wall; }

/// The first and the last wall time of those years.
inline constexpr Seconds kFirstWallTime = wallSeconds(cctz::civil_second(kFirstYear));
inline constexpr Seconds kLastWallTime = wallSeconds(cctz::civil_second(kLastYear + 1)) - 1;

/// The number of the day that a wall time falls on; day 0 is 1 January 2001.
constexpr std::int64_t dayOf(Seconds wall) {
  return (wall >= 0 ? wall : wall - (kSecondsPerDay - 1)) / kSecondsPerDay;
}

/// From the seconds since 1 January 1970 that the system's libraries count, and back.
inline constexpr Seconds kReferenceAfterUnixEpoch = 978'307'200;

}  // namespace phone
