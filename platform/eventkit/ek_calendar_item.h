// What a calendar holds.
#pragma once

#include "platform/foundation/ns_object.h"

class EKCalendar;
class NSURL;

class EKCalendarItem : public NSObject {
 public:
  EKCalendarItem() = delete;

  NSString* title() { return objc::send<"title", NSString*>(this); }
  NSString* location() { return objc::send<"location", NSString*>(this); }
  EKCalendar* calendar() { return objc::send<"calendar", EKCalendar*>(this); }
  /// None until the item was saved once.
  NSURL* externalURI() { return objc::send<"externalURI", NSURL*>(this); }
};
