// A list of rows.
#pragma once

#include "platform/uikit/ui_scroll_view.h"

class NSIndexPath;
class UITableViewCell;

class UITableView : public UIScrollView {
 public:
  UITableView() = delete;

  /// Nil when the cell is not in the table.
  NSIndexPath* indexPathForCell(UIView* cell) {
    return objc::send<"indexPathForCell:", NSIndexPath*>(this, cell);
  }
  /// Neither of the two is retained.
  void setDataSource(NSObject* source) { objc::send<"setDataSource:">(this, source); }
  void setDelegate(NSObject* delegate) { objc::send<"setDelegate:">(this, delegate); }
  void reloadData() { objc::send<"reloadData">(this); }
  /// A cell that left the screen (borrowed), or nil.
  UITableViewCell* dequeueReusableCell(NSString* identifier) {
    return objc::send<"dequeueReusableCellWithIdentifier:", UITableViewCell*>(this, identifier);
  }
};
