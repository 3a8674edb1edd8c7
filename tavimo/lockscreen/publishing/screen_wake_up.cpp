#include "tavimo/lockscreen/publishing/screen_wake_up.h"

#include "platform/objc/class_of.h"
#include "platform/springboard/sb_lock_screen_notification_bulletin_banner_item.h"
#include "tavimo/lockscreen/list_items.h"
#include "tavimo/lockscreen/pass_through.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

/// The record that asks for the screen, or nil when the argument is of a class without one.
BBBulletin* bulletinBehind(NSObject* item) {
  if (auto* const bulletin = objc::exactly<BBBulletin>(item)) return bulletin;
  if (auto* const bannerItem = objc::exactly<SBLockScreenNotificationBulletinBannerItem>(item)) {
    return recordOf(bannerItem->bulletinListItem());
  }
  TAVIMO_DEBUG(log<"SBLockScreenNotificationListController turnOnScreenIfNecessaryForItem arg does not have "
                   "bbulettin. ">());
  return nullptr;
}

TAVIMO_OWN_WORK bool isAskedByOwn(NSObject* item) {
  TAVIMO_DEBUG(log<"SBLockScreenNotificationListController turnOnScreenIfNecessaryForItem.">());
  return publisherOf(bulletinBehind(item)) == Publisher::kOwn;
}

}  // namespace

void turnOnScreenIfNecessaryForItem(SBLockScreenNotificationListController* self, SEL selector,
                                    NSObject* item) {
  if (isEnabled && isAskedByOwn(item)) return;
  turnOnScreenDisplaced(self, selector, item);
}

}  // namespace tavimo
