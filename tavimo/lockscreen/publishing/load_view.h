// The lock screen list loads its view: the moment at which everything is read afresh and published.
#pragma once

#include "platform/objc/displaced.h"
#include "platform/springboard/sb_lock_screen_notification_list_controller.h"

namespace tavimo {

inline constinit objc::Displaced<void(SBLockScreenNotificationListController*, SEL)> loadViewDisplaced;

void loadView(SBLockScreenNotificationListController* self, SEL selector);

}  // namespace tavimo
