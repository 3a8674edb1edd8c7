// A list of rows.
#pragma once

#include "platform/uikit/ui_view.h"

class NSIndexPath;

class UITableView : public UIView {
 public:
  UITableView() = delete;

  /// Nil when the cell is not in the table.
  NSIndexPath* indexPathForCell(UIView* cell) {
    return objc::send<"indexPathForCell:", NSIndexPath*>(this, cell);
  }
};
