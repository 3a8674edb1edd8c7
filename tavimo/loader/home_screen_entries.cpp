// What is installed in the home-screen process.
#include "tavimo/loader/hook_entry.h"
#include "tavimo/lockscreen/presentation/cell_behavior.h"
#include "tavimo/lockscreen/presentation/cell_layout.h"
#include "tavimo/lockscreen/presentation/item_behavior.h"
#include "tavimo/lockscreen/presentation/row_height.h"
#include "tavimo/lockscreen/presentation/wallpaper_underlay.h"
#include "tavimo/lockscreen/publishing/list_count.h"
#include "tavimo/lockscreen/publishing/load_view.h"
#include "tavimo/lockscreen/publishing/now_playing.h"
#include "tavimo/lockscreen/publishing/screen_wake_up.h"

namespace tavimo {

std::span<const HookEntry> homeScreenEntries() {
  // clang-format off
  static const HookEntry entries[] = {
      replaceMethod("SBLockScreenPluginOverlayContext", "initWithPluginName:pluginController:lockScreenViewController:", initWithPluginName, initWithPluginNameDisplaced),
      addMethod("SBLockScreenPluginOverlayContext", "removeCustomBulletins", removeCustomBulletins),
      replaceMethod("SBLockScreenNotificationListController", "count", count, countDisplaced),
      replaceMethod("SBLockScreenNotificationListController", "turnOnScreenIfNecessaryForItem:", turnOnScreenIfNecessaryForItem, turnOnScreenDisplaced),
      replaceMethod("SBLockScreenNotificationListController", "loadView", loadView, loadViewDisplaced),
      replaceMethod("SBAwayBulletinListItem", "iconImage", iconImage, iconImageDisplaced),
      replaceMethod("SBAwayBulletinListItem", "canBeClearedByNotificationCenter", canBeClearedByNotificationCenter, canBeClearedDisplaced),
      replaceMethod("SBLockScreenNotificationListView", "tableView:heightForRowAtIndexPath:", heightForRow, heightForRowDisplaced),
      replaceMethod("SBLockScreenNotificationListView", "tableView:canEditRowAtIndexPath:", canEditRow, canEditRowDisplaced),
      replaceMethod("SBLockScreenBulletinCell", "initWithStyle:reuseIdentifier:", initWithStyle, initWithStyleDisplaced),
      replaceMethod("SBLockScreenBulletinCell", "setContentAlpha:", setContentAlpha, setContentAlphaDisplaced),
      replaceMethod("SBLockScreenBulletinCell", "layoutSubviews", layoutSubviews, layoutSubviewsDisplaced),
      replaceMethod("SBLockScreenView", "initWithFrame:", initWithFrame, initWithFrameDisplaced),
      replaceMethod("SBLockScreenView", "_addLockContentUnderlayWithRequester:", addLockContentUnderlay, addUnderlayDisplaced),
  };
  // clang-format on
  return entries;
}

}  // namespace tavimo
