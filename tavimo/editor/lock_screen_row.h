// The table row "Show on Lockscreen" with its switch, as both the editor and the event view show it.
#pragma once

#include "platform/objc/owned.h"
#include "platform/uikit/ui_switch.h"
#include "platform/uikit/ui_table_view_cell.h"

namespace tavimo {

struct LockScreenRow {
  objc::Owned<UITableViewCell> cell;
  objc::Owned<UISwitch> toggle;
};

/// A new row. A flip of its switch sends `switchChanged:` with the switch to `target` (borrowed).
LockScreenRow makeLockScreenRow(NSObject* target);

}  // namespace tavimo
