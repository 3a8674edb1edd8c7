// What a calendar holds.
#pragma once

#include "platform/foundation/ns_object.h"

class EKCalendar;
class NSURL;

class EKCalendarItem : public NSObject {
 public:
  EKCalendarItem() = delete;

  NSString* title() { return objc::send<"title", NSString*>(this); }
  void setTitle(NSString* title) { objc::send<"setTitle:">(this, title); }
  NSString* location() { return objc::send<"location", NSString*>(this); }
  void setLocation(NSString* location) { objc::send<"setLocation:">(this, location); }
  bool hasRecurrenceRules() { return objc::send<"hasRecurrenceRules", bool>(this); }
  EKCalendar* calendar() { return objc::send<"calendar", EKCalendar*>(this); }
  void setCalendar(EKCalendar* calendar) { objc::send<"setCalendar:">(this, calendar); }
  /// Nil until the item was saved once.
  NSURL* externalURI() { return objc::send<"externalURI", NSURL*>(this); }
};
