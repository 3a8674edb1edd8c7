// One occurrence of an event.
#pragma once

#include "platform/eventkit/ek_calendar_item.h"

class EKEventStore;
class EKPersistentEvent;
class NSDate;

class EKEvent : public EKCalendarItem {
 public:
  EKEvent() = delete;

  /// A new event (borrowed), not saved yet.
  static EKEvent* eventWithEventStore(EKEventStore* store) {
    return objc::sendToClass<EKEvent, "eventWithEventStore:", EKEvent*>(store);
  }
  /// Nil until the event was saved once.
  NSString* eventIdentifier() { return objc::send<"eventIdentifier", NSString*>(this); }
  NSDate* startDate() { return objc::send<"startDate", NSDate*>(this); }
  NSDate* endDate() { return objc::send<"endDate", NSDate*>(this); }
  void setStartDate(NSDate* date) { objc::send<"setStartDate:">(this, date); }
  void setEndDate(NSDate* date) { objc::send<"setEndDate:">(this, date); }
  void setAllDay(bool allDay) { objc::send<"setAllDay:">(this, allDay); }
  bool isAllDay() { return objc::send<"isAllDay", bool>(this); }
  NSURL* externalURL() { return objc::send<"externalURL", NSURL*>(this); }
  EKPersistentEvent* persistentEvent() { return objc::send<"_persistentEvent", EKPersistentEvent*>(this); }
};
