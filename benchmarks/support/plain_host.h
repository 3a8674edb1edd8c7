// A home screen whose methods do next to nothing, so that what is measured is the plug-in. Its fonts and
// texts all measure alike.
#pragma once

#include "platform/foundation/ns_array.h"
#include "platform/objc/owned.h"
#include "platform/springboard/sb_away_bulletin_list_item.h"
#include "platform/springboard/sb_lock_screen_bulletin_cell.h"
#include "platform/springboard/sb_lock_screen_notification_list_controller.h"
#include "platform/springboard/sb_lock_screen_notification_list_view.h"
#include "platform/uikit/ns_index_path.h"

namespace benchmarks {

/// Registers the host's classes. Call once, before the plug-in is loaded.
void registerPlainHost();

/// The implementation that answers the selector for instances of the class, replaced or not.
IMP implementationOf(const char* className, const char* selector);

/// A list item whose record has that identifier.
objc::Owned<SBAwayBulletinListItem> makeListItem(NSString* identifier);

/// A controller that lists the items.
objc::Owned<SBLockScreenNotificationListController> makeListController(NSArray* items);

/// The row of the list (owned).
objc::Owned<NSIndexPath> makeRow(NSInteger row);

/// A cell that its table finds at that row.
objc::Owned<SBLockScreenBulletinCell> makeCell(NSIndexPath* row);

}  // namespace benchmarks
