// Which row of the list a cell stands in.
#pragma once

#include "platform/uikit/ns_index_path.h"
#include "platform/uikit/ui_table_view.h"

namespace tavimo {

/// The nearest table view that encloses the view, or nil.
UITableView* tableViewForCell(UIView* view);

/// The cell's row; nil for a cell outside a table. Nil reads as row 0 of section 0.
NSIndexPath* indexPathOfCell(UIView* cell);

}  // namespace tavimo
