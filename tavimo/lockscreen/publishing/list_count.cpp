#include "tavimo/lockscreen/publishing/list_count.h"

#include "contract/settings.h"
#include "platform/objc/ivar.h"
#include "tavimo/lockscreen/custom_items.h"
#include "tavimo/lockscreen/lock_screen_state.h"
#include "tavimo/lockscreen/pass_through.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

void removeUnderlays() {
  TAVIMO_DEBUG(log<"SBLockScreenNotificationListController count removing NotificationList underlay">());
  sBLockScreenView->removeLockContentUnderlay("NotificationList"_ns);
  TAVIMO_DEBUG(
      log<"SBLockScreenNotificationListController count removing %@ underlay">(lastOverlayContextRequester));
  sBLockScreenView->removeLockContentUnderlay(lastOverlayContextRequester);
}

TAVIMO_OWN_WORK void followCount(SBLockScreenNotificationListController* controller) {
  auto* const listItems = objc::readIvar<NSMutableArray>(controller, "_listItems");
  TAVIMO_DEBUG(log<"SBLockScreenNotificationListController listitems count=%lu">(listItems->count()));
  const bool onlyCustom = onlyCustomItemsAreDisplayed(listItems);
  if (onlyCustom && wallpaperBlurMode != contract::kBlurAlways) removeUnderlays();
}

}  // namespace

NSUInteger count(SBLockScreenNotificationListController* self, SEL selector) {
  const NSUInteger counted = countDisplaced(self, selector);
  if (isEnabled) followCount(self);
  return counted;
}

}  // namespace tavimo
