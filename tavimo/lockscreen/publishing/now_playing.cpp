#include "tavimo/lockscreen/publishing/now_playing.h"

#include "platform/foundation/ns_mutable_array.h"
#include "platform/objc/ivar.h"
#include "tavimo/lockscreen/list_items.h"
#include "tavimo/lockscreen/lock_screen_state.h"
#include "tavimo/lockscreen/pass_through.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

/// Long enough for the host to finish bringing the screen up.
constexpr double kRemovalDelaySeconds = 5.0;

/// The records of the own items, in list order. Collected before any is removed: removing changes the list.
objc::Owned<NSMutableArray> ownBulletins(NSArray* listItems) {
  auto bulletins = objc::make<NSMutableArray>();
  const NSUInteger count = listItems->count();
  for (NSUInteger i = 0; i < count; ++i) {
    BBBulletin* const bulletin = ownRecordOf(listItems->objectAtIndex(i));
    if (bulletin != nullptr) bulletins->addObject(bulletin);
  }
  return bulletins;
}

TAVIMO_OWN_WORK void followPlugin(SBLockScreenPluginOverlayContext* context, NSString* pluginName) {
  if (objc::asKind<NSString>(pluginName)->isEqualToString("NowPlayingArtLockScreen"_ns)) {
    TAVIMO_DEBUG(log<"detected Now Playing Screen">());
    context->performSelector(objc::selector<"removeCustomBulletins">(), nullptr, kRemovalDelaySeconds);
  } else {
    TAVIMO_DEBUG(log<"SBLockScreenPluginOverlayContext plugin is %@">(pluginName));
  }
}

}  // namespace

id initWithPluginName(SBLockScreenPluginOverlayContext* self, SEL selector, NSString* pluginName,
                      NSObject* pluginController, NSObject* lockScreenViewController) {
  if (hideOnNowPlayingScreen && isEnabled) followPlugin(self, pluginName);
  return initWithPluginNameDisplaced(self, selector, pluginName, pluginController, lockScreenViewController);
}

void removeCustomBulletins(SBLockScreenPluginOverlayContext* /*self*/, SEL /*selector*/) {
  SBLockScreenNotificationListController* const controller = sBLockScreenNotificationListController;
  if (controller == nullptr) {
    TAVIMO_DEBUG(
        log<"hideOnNowPlayingScreen is enabled, but SBLockScreenNotificationListController is nil!">());
    return;
  }
  auto* const listItems = objc::readIvar<NSArray>(controller, "_listItems");
  TAVIMO_DEBUG(log<"SBLockScreenPluginOverlayContext listitems count=%lu, tvm count=%ld">(listItems->count(),
                                                                                          tvmItemsCount));
  if (tvmItemsCount < 1) return;
  const objc::Owned<NSMutableArray> bulletins = ownBulletins(listItems);
  const NSUInteger count = bulletins->count();
  TAVIMO_DEBUG(log<"SBLockScreenPluginOverlayContext removing %lu bulletins">(count));
  for (NSUInteger i = 0; i < count; ++i) {
    controller->removeBulletin(objc::readIvar<NSObject>(controller, "_observer"),
                               static_cast<BBBulletin*>(bulletins->objectAtIndex(i)));
  }
}

}  // namespace tavimo
