// Tables: they ask their delegate for heights and their data source for cells, and keep cells only for the
// rows that are in sight.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "phone/uikit/ui_view.h"
#include "platform/uikit/ns_index_path.h"
#include "platform/uikit/ui_table_view.h"
#include "platform/uikit/ui_table_view_cell.h"

namespace phone {

struct TableState {
  struct Row {
    NSInteger section;
    NSInteger row;
    /// In the table's own coordinates.
    CGFloat top;
    CGFloat height;
    /// None while the row is out of sight.
    objc::Owned<UITableViewCell> cell;
  };
  /// All rows from top to bottom.
  std::vector<Row> rows;
  /// Cells out of sight, by reuse identifier.
  std::map<std::string, std::vector<objc::Owned<UITableViewCell>>> reuseQueue;
  /// Not owned, both.
  NSObject* dataSource = nullptr;
  NSObject* delegate = nullptr;
  CGFloat rowHeight = 44;
  bool needsReload = true;
};

/// Taps the row: the delegate is told, if it wants to know. False when there is no such row.
bool tapRow(UITableView* table, NSInteger section, NSInteger row);

}  // namespace phone
