// What the host asks a list item: its icon, and whether it may be cleared or swiped.
#pragma once

#include "platform/objc/displaced.h"
#include "platform/springboard/sb_away_bulletin_list_item.h"
#include "platform/springboard/sb_lock_screen_notification_list_view.h"
#include "platform/uikit/ns_index_path.h"
#include "platform/uikit/ui_image.h"
#include "platform/uikit/ui_table_view.h"

namespace tavimo {

inline constinit objc::Displaced<UIImage*(SBAwayBulletinListItem*, SEL)> iconImageDisplaced;
inline constinit objc::Displaced<bool(SBAwayBulletinListItem*, SEL)> canBeClearedDisplaced;
inline constinit objc::Displaced<bool(SBLockScreenNotificationListView*, SEL, UITableView*, NSIndexPath*)>
    canEditRowDisplaced;

/// The chosen icon for own items (borrowed); nil when they have no icon.
UIImage* iconImage(SBAwayBulletinListItem* self, SEL selector);

/// False for own items: they go when their event goes.
bool canBeClearedByNotificationCenter(SBAwayBulletinListItem* self, SEL selector);

/// False for rows of own items.
bool canEditRow(SBLockScreenNotificationListView* self, SEL selector, UITableView* tableView,
                NSIndexPath* indexPath);

}  // namespace tavimo
