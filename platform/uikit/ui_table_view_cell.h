// One row of a table.
#pragma once

#include "platform/uikit/ui_view.h"

class UILabel;

class UITableViewCell : public UIView {
 public:
  UITableViewCell() = delete;

  /// The host's word to a cell that is to show another row.
  void prepareForReuse() { objc::send<"prepareForReuse">(this); }
  UILabel* textLabel() { return objc::send<"textLabel", UILabel*>(this); }
  /// Nil in a cell whose style has one text only.
  UILabel* detailTextLabel() { return objc::send<"detailTextLabel", UILabel*>(this); }
  UIView* contentView() { return objc::send<"contentView", UIView*>(this); }
};
