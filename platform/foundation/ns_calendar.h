// Calendar arithmetic in the user's calendar and time zone.
#pragma once

#include "platform/foundation/ns_object.h"

class NSDate;
class NSDateComponents;

class NSCalendar : public NSObject {
 public:
  NSCalendar() = delete;

  /// The parts that components() can be asked for, as bits.
  enum Unit : NSUInteger {
    kYear = 1UL << 2,
    kMonth = 1UL << 3,
    kDay = 1UL << 4,
    kHour = 1UL << 5,
    kMinute = 1UL << 6,
    kSecond = 1UL << 7,
  };

  static NSCalendar* currentCalendar() {
    return objc::sendToClass<NSCalendar, "currentCalendar", NSCalendar*>();
  }
  NSDateComponents* components(NSUInteger units, NSDate* date) {
    return objc::send<"components:fromDate:", NSDateComponents*>(this, units, date);
  }
  NSDate* dateFromComponents(NSDateComponents* components) {
    return objc::send<"dateFromComponents:", NSDate*>(this, components);
  }
  NSDate* dateByAddingComponents(NSDateComponents* components, NSDate* date, NSUInteger options) {
    return objc::send<"dateByAddingComponents:toDate:options:", NSDate*>(this, components, date, options);
  }
};
