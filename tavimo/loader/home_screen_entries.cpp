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
      replaceMethod<initWithPluginName>("SBLockScreenPluginOverlayContext", "initWithPluginName:pluginController:lockScreenViewController:", initWithPluginNameDisplaced),
      addMethod<removeCustomBulletins>("SBLockScreenPluginOverlayContext", "removeCustomBulletins"),
      replaceMethod<count>("SBLockScreenNotificationListController", "count", countDisplaced),
      replaceMethod<turnOnScreenIfNecessaryForItem>("SBLockScreenNotificationListController", "turnOnScreenIfNecessaryForItem:", turnOnScreenDisplaced),
      replaceMethod<loadView>("SBLockScreenNotificationListController", "loadView", loadViewDisplaced),
      replaceMethod<iconImage>("SBAwayBulletinListItem", "iconImage", iconImageDisplaced),
      replaceMethod<canBeClearedByNotificationCenter>("SBAwayBulletinListItem", "canBeClearedByNotificationCenter", canBeClearedDisplaced),
      replaceMethod<heightForRow>("SBLockScreenNotificationListView", "tableView:heightForRowAtIndexPath:", heightForRowDisplaced),
      replaceMethod<canEditRow>("SBLockScreenNotificationListView", "tableView:canEditRowAtIndexPath:", canEditRowDisplaced),
      replaceMethod<initWithStyle>("SBLockScreenBulletinCell", "initWithStyle:reuseIdentifier:", initWithStyleDisplaced),
      replaceMethod<setContentAlpha>("SBLockScreenBulletinCell", "setContentAlpha:", setContentAlphaDisplaced),
      replaceMethod<layoutSubviews>("SBLockScreenBulletinCell", "layoutSubviews", layoutSubviewsDisplaced),
      replaceMethod<initWithFrame>("SBLockScreenView", "initWithFrame:", initWithFrameDisplaced),
      replaceMethod<addLockContentUnderlay>("SBLockScreenView", "_addLockContentUnderlayWithRequester:", addUnderlayDisplaced),
  };
  // clang-format on
  return entries;
}

}  // namespace tavimo
