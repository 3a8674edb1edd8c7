#include "tavimo/lockscreen/presentation/cell_row.h"

namespace tavimo {

namespace {

/// No screen nests views this deep: a longer chain is a host's mistake, a view that is its own ancestor.
constexpr int kDeepestHierarchy = 256;

}  // namespace

UITableView* tableViewForCell(UIView* view) {
  Class const tableViews = objc::classOf<UITableView>();
  UIView* ancestor = view->superview();
  for (int depth = 0; ancestor != nullptr && depth < kDeepestHierarchy; ++depth) {
    if (ancestor->isKindOfClass(tableViews)) return static_cast<UITableView*>(ancestor);
    ancestor = ancestor->superview();
  }
  return nullptr;
}

NSIndexPath* indexPathOfCell(UIView* cell) { return tableViewForCell(cell)->indexPathForCell(cell); }

}  // namespace tavimo
