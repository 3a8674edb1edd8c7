#include "tavimo/lockscreen/presentation/wallpaper_underlay.h"

#include "platform/objc/ivar.h"
#include "tavimo/lockscreen/lock_screen_state.h"
#include "tavimo/lockscreen/pass_through.h"
#include "tavimo/lockscreen/publishing/custom_items.h"
#include "tavimo/settings/checked_objects.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

enum BlurMode : NSInteger { kSuppressForCustomItems = 1, kSuppressAlways = 2 };

/// Whether a request for the list or a plug-in screen is refused. Before the first load there is no list and
/// there are no items in it.
bool isSuppressed() {
  if (wallpaperBlurMode != kSuppressForCustomItems) return wallpaperBlurMode == kSuppressAlways;
  return onlyCustomItemsAreDisplayed(
      objc::readIvar<NSMutableArray>(sBLockScreenNotificationListController, "_listItems"));
}

/// Whether the request is one that the blur mode decides about; remembers a plug-in screen's name.
bool isDecidedHere(NSString* requester) {
  if (requester->hasPrefix("OverlayContext"_ns)) {
    objc::assignStrong(lastOverlayContextRequester, requester);
    return true;
  }
  return requester->isEqualToString("NotificationList"_ns);
}

TAVIMO_OWN_WORK void addUnlessSuppressed(SBLockScreenView* self, SEL selector, NSString* requester) {
  if (isEnabled) {
    NSString* const name = asText(requester);
    if (name->isEqualToString("OrvNotificationList"_ns)) {
      logDebug<"%@ adding wallpaper underlay for context NotificationList, by my request">();
      addUnderlayDisplaced(self, selector, "NotificationList"_ns);
      return;
    }
    if (isDecidedHere(name) && isSuppressed()) {
      logDebug<"%@ supressing wallpaper underlay for %@">(requester);
      return;
    }
  }
  logDebug<"%@ not supressing wallpaper underlay for context: %@">(requester);
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
