// The records that the plug-in has in the host's list, held from one load of the list to the next.
#pragma once

#include "platform/springboard/sb_lock_screen_notification_list_controller.h"

namespace tavimo {

/// Takes the records of the previous load out of the controller's list and lets go of them. Releases of the
/// phone that start each load with an empty list are not asked to.
void withdrawBulletins(SBLockScreenNotificationListController* controller);

/// Queries the events and hands one record per event that is not hidden to the controller.
void publishEvents(SBLockScreenNotificationListController* controller);

}  // namespace tavimo
