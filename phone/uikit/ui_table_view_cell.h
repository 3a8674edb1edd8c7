// Table cells: a content view with a text label, and what a table needs to reuse them.
#pragma once

#include "phone/uikit/ui_view.h"
#include "platform/uikit/ui_label.h"
#include "platform/uikit/ui_table_view_cell.h"

namespace phone {

struct CellState {
  /// None: the cell is never reused.
  objc::Owned<NSString> reuseIdentifier;
  objc::Owned<UIView> contentView;
  /// Made when they are first asked for.
  objc::Owned<UILabel> textLabel;
  objc::Owned<UILabel> detailTextLabel;
  NSInteger style = 0;
};

}  // namespace phone
