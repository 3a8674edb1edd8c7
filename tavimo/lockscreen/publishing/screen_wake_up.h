// Own records never turn the screen on, whether they arrive bare or inside a banner item.
#pragma once

#include "platform/objc/displaced.h"
#include "platform/springboard/sb_lock_screen_notification_list_controller.h"

namespace tavimo {

inline constinit objc::Displaced<void(SBLockScreenNotificationListController*, SEL, NSObject*)>
    turnOnScreenDisplaced;

void turnOnScreenIfNecessaryForItem(SBLockScreenNotificationListController* self, SEL selector,
                                    NSObject* item);

}  // namespace tavimo
