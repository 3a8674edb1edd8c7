// The lock screen's notification list.
#pragma once

#include "platform/foundation/ns_object.h"

class BBBulletin;
class NSIndexPath;

class SBLockScreenNotificationListController : public NSObject {
 public:
  SBLockScreenNotificationListController() = delete;

  void loadView() { objc::send<"loadView">(this); }
  /// How many items are listed.
  NSUInteger count() { return objc::send<"count", NSUInteger>(this); }
  void turnOnScreenIfNecessary(NSObject* item) { objc::send<"turnOnScreenIfNecessaryForItem:">(this, item); }
  /// Nil when no item stands there.
  NSObject* listItemAtIndexPath(NSIndexPath* indexPath) {
    return objc::send<"listItemAtIndexPath:", NSObject*>(this, indexPath);
  }
  /// Adds a record (iOS 7); ask respondsToSelector() first.
  void addBulletin(NSObject* observer, BBBulletin* bulletin, NSUInteger feed) {
    objc::send<"observer:addBulletin:forFeed:">(this, observer, bulletin, feed);
  }
  /// Adds a record (iOS 8 and later), with an alert flag and a reply block or nil.
  void addBulletin(NSObject* observer, BBBulletin* bulletin, NSUInteger feed, bool playLightsAndSirens,
                   id reply) {
    objc::send<"observer:addBulletin:forFeed:playLightsAndSirens:withReply:">(this, observer, bulletin, feed,
                                                                              playLightsAndSirens, reply);
  }
  void removeBulletin(NSObject* observer, BBBulletin* bulletin) {
    objc::send<"observer:removeBulletin:">(this, observer, bulletin);
  }
};
