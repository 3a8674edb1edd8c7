#include "tavimo/lockscreen/presentation/wallpaper_underlay.h"

#include "contract/settings.h"
#include "platform/objc/ivar.h"
#include "tavimo/lockscreen/custom_items.h"
#include "tavimo/lockscreen/lock_screen_state.h"
#include "tavimo/lockscreen/pass_through.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

/// Whether a request for the list or a plug-in screen is refused. Before the first load there is no list and
/// there are no items in it.
bool isSuppressed() {
  if (wallpaperBlurMode != contract::kBlurNotForEventsAlone) return wallpaperBlurMode == contract::kBlurNever;
  return onlyCustomItemsAreDisplayed(
      objc::readIvar<NSMutableArray>(sBLockScreenNotificationListController, "_listItems"));
}

TAVIMO_OWN_WORK void addUnlessSuppressed(SBLockScreenView* self, SEL selector, NSString* requester) {
  if (isEnabled) {
    NSString* const name = objc::asKind<NSString>(requester);
    if (name->isEqualToString("OrvNotificationList"_ns)) {
      TAVIMO_DEBUG(log<"adding wallpaper underlay for context NotificationList, by my request">());
      addUnderlayDisplaced(self, selector, "NotificationList"_ns);
      return;
    }
    const bool isOfPluginScreen = name->hasPrefix("OverlayContext"_ns);
    if (isOfPluginScreen) objc::assignStrong(lastOverlayContextRequester, name);
    if ((isOfPluginScreen || name->isEqualToString("NotificationList"_ns)) && isSuppressed()) {
      TAVIMO_DEBUG(log<"supressing wallpaper underlay for %@">(requester));
      return;
    }
  }
  TAVIMO_DEBUG(log<"not supressing wallpaper underlay for context: %@">(requester));
  addUnderlayDisplaced(self, selector, requester);
}

}  // namespace

id initWithFrame(SBLockScreenView* self, SEL selector, CGRect frame) {
  if (sBLockScreenView != self) objc::assignStrong(sBLockScreenView, self);
  return initWithFrameDisplaced(self, selector, frame);
}

void addLockContentUnderlay(SBLockScreenView* self, SEL selector, NSString* requester) {
  if (actsOrReports()) return addUnlessSuppressed(self, selector, requester);
  addUnderlayDisplaced(self, selector, requester);
}

}  // namespace tavimo
