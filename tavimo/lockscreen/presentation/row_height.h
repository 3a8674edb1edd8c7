// Heights of the list's rows, from the configured text sizes.
#pragma once

#include "platform/objc/displaced.h"
#include "platform/springboard/sb_lock_screen_notification_list_view.h"
#include "platform/uikit/ns_index_path.h"
#include "platform/uikit/ui_table_view.h"

namespace tavimo {

inline constinit objc::Displaced<CGFloat(SBLockScreenNotificationListView*, SEL, UITableView*, NSIndexPath*)>
    heightForRowDisplaced;

/// The row's height in points. Under blur mode 1 a row of another publisher brings the underlay back.
CGFloat heightForRow(SBLockScreenNotificationListView* self, SEL selector, UITableView* tableView,
                     NSIndexPath* indexPath);

}  // namespace tavimo
