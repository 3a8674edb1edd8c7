// Buckets of occurrences by length. Within one bucket, everything that overlaps a range starts at most the
// bucket's longest length before the range, which makes the overlap a stretch of an ordinary index: an event
// of a year costs the query for one day nothing, unless it runs on that day.
#pragma once

#include <bit>

#include "phone/calendarstore/recurrence/calendar_time.h"

namespace phone {

/// Lengths double from bucket to bucket: up to 1, 2, 4... hours.
inline constexpr int kBucketLengths = 28;

constexpr Seconds longestInBucket(int lengthClass) { return Seconds{3600} << lengthClass; }

/// The class of a length in seconds; the last class takes whatever is longer.
constexpr int lengthClass(Seconds length) {
  const auto hours = static_cast<std::uint64_t>(length <= 3600 ? 0 : (length - 1) / 3600);
  const int fitting = std::bit_width(hours);
  return fitting < kBucketLengths ? fitting : kBucketLengths - 1;
}

/// Wall times and instants are kept apart, since a query compares them with different bounds.
constexpr std::int64_t bucketOf(bool isWallTime, int lengthClass) {
  return (isWallTime ? kBucketLengths : 0) + lengthClass;
}

}  // namespace phone
