// The parts of a time, or an amount of time in parts.
#pragma once

#include "platform/foundation/ns_object.h"

class NSDateComponents : public NSObject {
 public:
  NSDateComponents() = delete;

  NSInteger year() { return objc::send<"year", NSInteger>(this); }
  NSInteger month() { return objc::send<"month", NSInteger>(this); }
  NSInteger day() { return objc::send<"day", NSInteger>(this); }
  NSInteger hour() { return objc::send<"hour", NSInteger>(this); }
  NSInteger minute() { return objc::send<"minute", NSInteger>(this); }
  void setYear(NSInteger year) { objc::send<"setYear:">(this, year); }
  void setDay(NSInteger day) { objc::send<"setDay:">(this, day); }
  void setHour(NSInteger hour) { objc::send<"setHour:">(this, hour); }
  void setMinute(NSInteger minute) { objc::send<"setMinute:">(this, minute); }
  void setSecond(NSInteger second) { objc::send<"setSecond:">(this, second); }
};
