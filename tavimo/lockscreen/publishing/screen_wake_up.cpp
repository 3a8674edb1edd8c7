#include "tavimo/lockscreen/publishing/screen_wake_up.h"

#include "platform/objc/class_name.h"
#include "platform/springboard/sb_lock_screen_notification_bulletin_banner_item.h"
#include "tavimo/lockscreen/list_items.h"
#include "tavimo/lockscreen/pass_through.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

/// The record that asks for the screen, or none when the argument is of a class without one.
BBBulletin* bulletinBehind(NSObject* item) {
  if (objc::isOfClass(item, "BBBulletin")) return static_cast<BBBulletin*>(item);
  if (objc::isOfClass(item, "SBLockScreenNotificationBulletinBannerItem")) {
    return recordOf(static_cast<SBLockScreenNotificationBulletinBannerItem*>(item)->bulletinListItem());
  }
  if (debugMode) {
    NSLog(
        "TVM: SBLockScreenNotificationListController turnOnScreenIfNecessaryForItem arg does not have bbulettin. "_ns);
  }
  return nullptr;
}

TAVIMO_OWN_WORK bool isAskedByOwn(NSObject* item) {
  if (debugMode) NSLog("TVM: SBLockScreenNotificationListController turnOnScreenIfNecessaryForItem."_ns);
  return publisherOf(bulletinBehind(item)) == Publisher::kOwn;
}

}  // namespace

void turnOnScreenIfNecessaryForItem(SBLockScreenNotificationListController* self, SEL selector,
                                    NSObject* item) {
  if (isEnabled && isAskedByOwn(item)) return;
  turnOnScreenDisplaced(self, selector, item);
}

}  // namespace tavimo
