// A point in time. Times count seconds since 1 January 2001 00:00:00 UTC.
#pragma once

#include "platform/foundation/ns_object.h"

class NSDate : public NSObject {
 public:
  NSDate() = delete;

  static NSDate* date() { return objc::sendToClass<NSDate, "date", NSDate*>(); }
  static NSDate* dateWithTimeIntervalSinceReferenceDate(double seconds) {
    return objc::sendToClass<NSDate, "dateWithTimeIntervalSinceReferenceDate:", NSDate*>(seconds);
  }
  NSDate* dateByAddingTimeInterval(double seconds) {
    return objc::send<"dateByAddingTimeInterval:", NSDate*>(this, seconds);
  }
  double timeIntervalSinceReferenceDate() {
    return objc::send<"timeIntervalSinceReferenceDate", double>(this);
  }
  /// -1, 0 or 1 as this date lies before, at or after the other.
  NSInteger compare(NSDate* other) { return objc::send<"compare:", NSInteger>(this, other); }
};
