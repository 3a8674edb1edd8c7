// The host counts its list after every change: the moment to drop underlays that only custom items lie on.
#pragma once

#include "platform/objc/displaced.h"
#include "platform/springboard/sb_lock_screen_notification_list_controller.h"

namespace tavimo {

inline constinit objc::Displaced<NSUInteger(SBLockScreenNotificationListController*, SEL)> countDisplaced;

/// Gives the host's own count, always.
NSUInteger count(SBLockScreenNotificationListController* self, SEL selector);

}  // namespace tavimo
