// SBLockScreenNotificationListController, which keeps the list: it takes records from its observer, orders
// them, tells its view about every change and decides what wakes the screen.
#pragma once

#include "platform/foundation/ns_mutable_array.h"
#include "platform/objc/owned.h"
#include "platform/springboard/sb_away_list_item.h"
#include "platform/springboard/sb_lock_screen_notification_list_controller.h"
#include "platform/springboard/sb_lock_screen_notification_list_view.h"
#include "platform/springboard/sb_lock_screen_view.h"

namespace phone {

/// The items as shown, first on top (borrowed from the controller).
NSMutableArray* listItems(SBLockScreenNotificationListController* controller);

/// Whom the controller takes records from (borrowed from the controller).
NSObject* observerOf(SBLockScreenNotificationListController* controller);

/// Adds an item that stands for no record, such as a pass.
void insertItem(SBLockScreenNotificationListController* controller, SBAwayListItem* item);

/// The list as it is seen (borrowed from the controller); nil before the first loadView.
SBLockScreenNotificationListView* listViewOf(SBLockScreenNotificationListController* controller);

/// The lock screen that shows the list (borrowed; none: no lock screen).
void setLockScreenView(SBLockScreenNotificationListController* controller, SBLockScreenView* view);

/// The phone is unlocked: the view goes. Before iOS 9 the list goes with it, so that the next locking starts
/// with an empty one; from then on it stays until its observer withdraws its records.
void unloadView(SBLockScreenNotificationListController* controller);

/// Asks the controller to turn the screen on for the item, in the way of the running release.
void wakeScreenFor(SBLockScreenNotificationListController* controller, SBAwayListItem* item);

}  // namespace phone
