// SBLockScreenNotificationListView, the list as it is seen: a table whose rows are the controller's items.
#pragma once

#include <cstddef>
#include <vector>

#include "platform/objc/owned.h"
#include "platform/springboard/sb_lock_screen_bulletin_cell.h"
#include "platform/springboard/sb_lock_screen_notification_list_controller.h"
#include "platform/springboard/sb_lock_screen_notification_list_view.h"

class UITableView;

namespace phone {

/// A list view for that controller (borrowed), of that frame in points.
objc::Owned<SBLockScreenNotificationListView> makeListView(SBLockScreenNotificationListController* controller,
                                                           CGRect frame);

/// The controller ends before the view: the view is empty from now on.
void forgetController(SBLockScreenNotificationListView* listView);

/// The list has changed: rows, heights and cells are asked for again at the next layout.
void reloadRows(SBLockScreenNotificationListView* listView);

/// Scrolls so that that row is the topmost in sight, or as far as the list goes.
void scrollToRow(SBLockScreenNotificationListView* listView, std::size_t row);

/// The table inside (borrowed).
UITableView* tableOf(SBLockScreenNotificationListView* listView);

/// A row as it is laid out.
struct ShownRow {
  /// In points in the list view's coordinates; above or below the view's bounds when out of sight.
  CGRect frame;
  /// None while the row is out of sight (borrowed).
  SBLockScreenBulletinCell* cell;
};

/// All rows from top to bottom, as the latest layout left them.
std::vector<ShownRow> shownRows(SBLockScreenNotificationListView* listView);

}  // namespace phone
