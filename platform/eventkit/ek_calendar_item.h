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
  NSString* notes() { return objc::send<"notes", NSString*>(this); }
  void setNotes(NSString* notes) { objc::send<"setNotes:">(this, notes); }
  NSURL* getURL() { return objc::send<"URL", NSURL*>(this); }
  bool hasRecurrenceRules() { return objc::send<"hasRecurrenceRules", bool>(this); }
  EKCalendar* calendar() { return objc::send<"calendar", EKCalendar*>(this); }
  void setCalendar(EKCalendar* calendar) { objc::send<"setCalendar:">(this, calendar); }
  /// None until the item was saved once.
  NSURL* externalURI() { return objc::send<"externalURI", NSURL*>(this); }
};
