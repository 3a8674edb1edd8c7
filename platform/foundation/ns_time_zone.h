// A time zone.
#pragma once

#include "platform/foundation/ns_object.h"

class NSDate;

class NSTimeZone : public NSObject {
 public:
  NSTimeZone() = delete;

  /// The zone that the process takes for its user's.
  static NSTimeZone* defaultTimeZone() {
    return objc::sendToClass<NSTimeZone, "defaultTimeZone", NSTimeZone*>();
  }
  static void setDefaultTimeZone(NSTimeZone* zone) {
    objc::sendToClass<NSTimeZone, "setDefaultTimeZone:">(zone);
  }
  static NSTimeZone* systemTimeZone() {
    return objc::sendToClass<NSTimeZone, "systemTimeZone", NSTimeZone*>();
  }
  /// Nil when there is no zone of that name.
  static NSTimeZone* timeZoneWithName(NSString* name) {
    return objc::sendToClass<NSTimeZone, "timeZoneWithName:", NSTimeZone*>(name);
  }
  NSString* name() { return objc::send<"name", NSString*>(this); }
  NSInteger secondsFromGMTForDate(NSDate* date) {
    return objc::send<"secondsFromGMTForDate:", NSInteger>(this, date);
  }
};
