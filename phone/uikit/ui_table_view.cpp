#include "phone/uikit/ui_table_view.h"

#include <algorithm>
#include <utility>

#include "phone/uikit/definitions.h"
#include "phone/uikit/ui_table_view_cell.h"
#include "platform/foundation/ns_mutable_array.h"

namespace phone {

namespace {

TableState& stateOfTable(UITableView* table) { return stateOf<TableState>(table); }

/// The named method's answer, or the fallback when the object does not have it.
template <objc::FixedString Name, typename Result, typename... Arguments>
Result askOr(Result fallback, NSObject* object, Arguments... arguments) {
  if (object == nullptr || !object->respondsToSelector(objc::selector<Name>())) return fallback;
  return objc::send<Name, Result>(object, arguments...);
}

NSIndexPath* pathOf(const TableState::Row& row) { return NSIndexPath::indexPathForRow(row.row, row.section); }

TableState::Row* findRow(UITableView* self, NSInteger section, NSInteger row) {
  auto& rows = stateOfTable(self).rows;
  const auto place = std::lower_bound(rows.begin(), rows.end(), std::pair(section, row),
                                      [](const TableState::Row& each, const auto& sought) {
                                        return std::pair(each.section, each.row) < sought;
                                      });
  return place != rows.end() && place->section == section && place->row == row ? &*place : nullptr;
}

void dropCell(UITableView* self, TableState::Row& row) {
  const auto cell = std::exchange(row.cell, {});
  if (!cell) return;
  cell->removeFromSuperview();
  NSString* const identifier = stateOf<CellState>(cell.get()).reuseIdentifier.get();
  if (identifier != nullptr) stateOfTable(self).reuseQueue[identifier->UTF8String()].push_back(cell);
}

/// Asks for the numbers of sections and rows and for all heights.
void measureRows(UITableView* self) {
  TableState& table = stateOfTable(self);
  table.needsReload = false;
  for (auto& row : table.rows) dropCell(self, row);
  table.rows.clear();
  CGFloat top = 0;
  const auto sections = askOr<"numberOfSectionsInTableView:">(NSInteger{1}, table.dataSource, self);
  for (NSInteger section = 0; section < sections; ++section) {
    top += askOr<"tableView:heightForHeaderInSection:">(CGFloat{0}, table.delegate, self, section);
    const auto count =
        askOr<"tableView:numberOfRowsInSection:">(NSInteger{0}, table.dataSource, self, section);
    for (NSInteger row = 0; row < count; ++row) {
      NSIndexPath* const path = NSIndexPath::indexPathForRow(row, section);
      const auto height =
          askOr<"tableView:heightForRowAtIndexPath:">(table.rowHeight, table.delegate, self, path);
      table.rows.push_back({section, row, top, height, {}});
      top += height;
    }
  }
  self->setContentSize(CGSize{self->bounds().size.width, top});
}

void reloadData(UITableView* self, SEL) {
  stateOfTable(self).needsReload = true;
  self->setNeedsLayout();
}

/// Gives the row its cell. The data source may do anything meanwhile, even reload the table.
void showRow(UITableView* self, std::size_t index) {
  TableState& table = stateOfTable(self);
  NSIndexPath* const path = pathOf(table.rows[index]);
  auto* const cell = askOr<"tableView:cellForRowAtIndexPath:">(static_cast<UITableViewCell*>(nullptr),
                                                               table.dataSource, self, path);
  if (cell == nullptr || index >= table.rows.size()) return;
  TableState::Row& row = table.rows[index];
  row.cell = objc::Owned<UITableViewCell>::retain(cell);
  cell->setFrame({{0, row.top}, {self->bounds().size.width, row.height}});
  self->addSubview(cell);
  objc::sendIfResponds<"tableView:willDisplayCell:forRowAtIndexPath:">(table.delegate, self, cell, path);
}

void layoutSubviews(UITableView* self, SEL) {
  TableState& table = stateOfTable(self);
  if (table.needsReload) measureRows(self);
  const CGRect sight = self->bounds();
  const CGFloat bottom = sight.origin.y + sight.size.height;
  for (std::size_t index = 0; index < table.rows.size(); ++index) {
    TableState::Row& row = table.rows[index];
    const bool isInSight = row.top < bottom && row.top + row.height > sight.origin.y;
    if (!isInSight) {
      dropCell(self, row);
    } else if (!row.cell) {
      showRow(self, index);
    } else {
      row.cell->setFrame({{0, row.top}, {sight.size.width, row.height}});
    }
  }
}

NSIndexPath* indexPathForCell(UITableView* self, SEL, UIView* cell) {
  if (cell == nullptr) return nullptr;
  for (const auto& row : stateOfTable(self).rows) {
    if (row.cell.get() == cell) return pathOf(row);
  }
  return nullptr;
}

UITableViewCell* cellForRowAtIndexPath(UITableView* self, SEL, NSIndexPath* path) {
  TableState::Row* const row = path == nullptr ? nullptr : findRow(self, path->section(), path->row());
  return row == nullptr ? nullptr : row->cell.get();
}

CGRect rectForRowAtIndexPath(UITableView* self, SEL, NSIndexPath* path) {
  if (stateOfTable(self).needsReload) measureRows(self);
  const TableState::Row* const row = findRow(self, path->section(), path->row());
  if (row == nullptr) return {};
  return {{0, row->top}, {self->bounds().size.width, row->height}};
}

NSArray* visibleCells(UITableView* self, SEL) {
  NSMutableArray* const cells = NSMutableArray::array();
  for (const auto& row : stateOfTable(self).rows) {
    if (row.cell) cells->addObject(row.cell.get());
  }
  return cells;
}

UITableViewCell* dequeueReusableCell(UITableView* self, SEL, NSString* identifier) {
  if (identifier == nullptr) return nullptr;
  auto& spare = stateOfTable(self).reuseQueue[identifier->UTF8String()];
  if (spare.empty()) return nullptr;
  auto cell = std::move(spare.back());
  spare.pop_back();
  cell->prepareForReuse();
  return cell.autorelease();
}

NSInteger numberOfRowsInSection(UITableView* self, SEL, NSInteger section) {
  if (stateOfTable(self).needsReload) measureRows(self);
  const auto& rows = stateOfTable(self).rows;
  return std::count_if(rows.begin(), rows.end(),
                       [section](const auto& row) { return row.section == section; });
}

NSObject* dataSource(UITableView* self, SEL) { return stateOfTable(self).dataSource; }
NSObject* delegate(UITableView* self, SEL) { return stateOfTable(self).delegate; }

void setDataSource(UITableView* self, SEL, NSObject* source) {
  stateOfTable(self).dataSource = source;
  self->reloadData();
}

void setDelegate(UITableView* self, SEL, NSObject* delegate) {
  stateOfTable(self).delegate = delegate;
  self->reloadData();
}

}  // namespace

bool tapRow(UITableView* table, NSInteger section, NSInteger row) {
  if (stateOfTable(table).needsReload) measureRows(table);
  const TableState::Row* const found = findRow(table, section, row);
  if (found == nullptr) return false;
  objc::sendIfResponds<"tableView:didSelectRowAtIndexPath:">(stateOfTable(table).delegate, table,
                                                             pathOf(*found));
  return true;
}

ClassDefinition uiTableView() {
  return {.name = "UITableView",
          .superclass = "UIScrollView",
          .state = state<TableState>(),
          .methods = {
              method("dataSource", dataSource),
              method("setDataSource:", setDataSource),
              method("delegate", delegate),
              method("setDelegate:", setDelegate),
              property<&TableState::rowHeight, "rowHeight">(),
              method("reloadData", reloadData),
              method("layoutSubviews", layoutSubviews),
              method("indexPathForCell:", indexPathForCell),
              method("cellForRowAtIndexPath:", cellForRowAtIndexPath),
              method("rectForRowAtIndexPath:", rectForRowAtIndexPath),
              method("numberOfRowsInSection:", numberOfRowsInSection),
              method("visibleCells", visibleCells),
              method("dequeueReusableCellWithIdentifier:", dequeueReusableCell),
          }};
}

}  // namespace phone
