// One occurrence of an event.
#pragma once

#include "platform/eventkit/ek_calendar_item.h"

class EKPersistentEvent;
class NSDate;

class EKEvent : public EKCalendarItem {
 public:
  EKEvent() = delete;

  NSDate* startDate() { return objc::send<"startDate", NSDate*>(this); }
  NSDate* endDate() { return objc::send<"endDate", NSDate*>(this); }
  bool isAllDay() { return objc::send<"isAllDay", bool>(this); }
  NSURL* externalURL() { return objc::send<"externalURL", NSURL*>(this); }
  EKPersistentEvent* persistentEvent() { return objc::send<"_persistentEvent", EKPersistentEvent*>(this); }
};
