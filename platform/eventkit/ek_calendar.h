// A calendar of the store.
#pragma once

#include "platform/coregraphics/cg_color.h"
#include "platform/foundation/ns_object.h"

class EKCalendar : public NSObject {
 public:
  EKCalendar() = delete;

  NSString* calendarIdentifier() { return objc::send<"calendarIdentifier", NSString*>(this); }
  NSString* title() { return objc::send<"title", NSString*>(this); }
  CGColorRef getCGColor() { return objc::send<"CGColor", CGColorRef>(this); }
};
