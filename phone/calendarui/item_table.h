// The rows of a calendar screen as its table keeps them: cells that items supplied, in groups. A table asks
// for cells when it is loaded, and shows those cells until it is loaded again.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/objc/owned.h"
#include "platform/uikit/ui_switch.h"
#include "platform/uikit/ui_table_view_cell.h"

namespace phone {

struct ItemTable {
  std::vector<std::vector<objc::Owned<UITableViewCell>>> groups;

  /// Asks every item for its cells, one group of rows per group of items; a group without rows is left out.
  void load(const std::vector<std::vector<NSObject*>>& items);
};

/// A row as it stands on the screen. Rectangles are in points, in the cell's superview.
struct Row {
  std::string text = {};
  std::string detail = {};
  CGRect frame = {};
  /// None for a row without a switch, as is its place.
  std::optional<bool> switchOn = std::nullopt;
  std::optional<CGRect> switchFrame = std::nullopt;
};

/// What the cell shows.
Row rowOf(UITableViewCell* cell);

/// The switch in a cell (borrowed), or nil.
UISwitch* switchIn(UITableViewCell* cell);

}  // namespace phone
