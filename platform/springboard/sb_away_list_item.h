// An item of the lock screen list, whatever it stands for.
#pragma once

#include "platform/foundation/ns_object.h"

class NSDate;
class UIImage;

class SBAwayListItem : public NSObject {
 public:
  SBAwayListItem() = delete;

  NSString* title() { return objc::send<"title", NSString*>(this); }
  NSString* subtitle() { return objc::send<"subtitle", NSString*>(this); }
  NSString* message() { return objc::send<"message", NSString*>(this); }
  /// What the list is ordered by, newest first; none stands below every date.
  NSDate* sortDate() { return objc::send<"sortDate", NSDate*>(this); }
  /// None for an item without an icon.
  UIImage* iconImage() { return objc::send<"iconImage", UIImage*>(this); }
  bool canBeClearedByNotificationCenter() {
    return objc::send<"canBeClearedByNotificationCenter", bool>(this);
  }
};
