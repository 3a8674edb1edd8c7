#include "tavimo/lockscreen/publishing/list_count.h"

#include "platform/objc/ivar.h"
#include "tavimo/lockscreen/lock_screen_state.h"
#include "tavimo/lockscreen/pass_through.h"
#include "tavimo/lockscreen/publishing/custom_items.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

void removeUnderlays() {
  logDebug<"%@ SBLockScreenNotificationListController count removing NotificationList underlay">();
  sBLockScreenView->removeLockContentUnderlay("NotificationList"_ns);
  logDebug<"%@ SBLockScreenNotificationListController count removing %@ underlay">(
      lastOverlayContextRequester);
  sBLockScreenView->removeLockContentUnderlay(lastOverlayContextRequester);
}

TAVIMO_OWN_WORK void followCount(SBLockScreenNotificationListController* controller) {
  auto* const listItems = objc::readIvar<NSMutableArray>(controller, "_listItems");
  if (debugMode) {
    logAlways("%@ SBLockScreenNotificationListController listitems count=%lu"_ns, listItems->count());
  }
  const bool onlyCustom = onlyCustomItemsAreDisplayed(listItems);
  if (onlyCustom && wallpaperBlurMode != 0) removeUnderlays();
}

}  // namespace

NSUInteger count(SBLockScreenNotificationListController* self, SEL selector) {
  const NSUInteger counted = countDisplaced(self, selector);
  if (isEnabled) followCount(self);
  return counted;
}

}  // namespace tavimo
