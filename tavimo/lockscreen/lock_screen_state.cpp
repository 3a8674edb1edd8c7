#include "tavimo/lockscreen/lock_screen_state.h"

constinit SBLockScreenNotificationListController* sBLockScreenNotificationListController = nullptr;
constinit SBLockScreenView* sBLockScreenView = nullptr;
constinit NSInteger tvmItemsCount = 0;
constinit double cellWithSubtitleHeight = 0;
constinit double cellWithoutSubtitleHeight = 0;

namespace tavimo {

constinit NSString* lastOverlayContextRequester = nullptr;

}  // namespace tavimo
