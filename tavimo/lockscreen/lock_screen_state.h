// What the lock screen replacements share for the life of the home-screen process. Objects are strong
// references; the exported names are for other programs to read.
#pragma once

#include "platform/springboard/sb_lock_screen_notification_list_controller.h"
#include "platform/springboard/sb_lock_screen_view.h"
#include "tavimo/export.h"

/// The list controller that loaded its view last; nil before the first load.
TAVIMO_EXPORT SBLockScreenNotificationListController* sBLockScreenNotificationListController;
/// The lock screen view that was created last; nil before the first one.
TAVIMO_EXPORT SBLockScreenView* sBLockScreenView;
/// How many events the last load with the system enabled found, hidden ones included.
TAVIMO_EXPORT NSInteger tvmItemsCount;
/// Heights in points of an own cell with and without subtitle, from its last layout.
TAVIMO_EXPORT double cellWithSubtitleHeight;
TAVIMO_EXPORT double cellWithoutSubtitleHeight;

namespace tavimo {

/// The last "OverlayContext..." name that asked for an underlay while the system was enabled, or nil.
extern NSString* lastOverlayContextRequester;

}  // namespace tavimo
