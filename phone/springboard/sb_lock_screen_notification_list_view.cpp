#include "phone/springboard/sb_lock_screen_notification_list_view.h"

#include <algorithm>

#include "phone/springboard/definitions.h"
#include "phone/springboard/sb_lock_screen_bulletin_cell.h"
#include "phone/springboard/sb_lock_screen_notification_list_controller.h"
#include "phone/springboard/springboard.h"
#include "phone/uikit/ui_table_view.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_number.h"

namespace phone {

namespace {

using ListView = SBLockScreenNotificationListView;

struct ListViewState {
  objc::Owned<UITableView> table;
  SBLockScreenNotificationListController* controller = nullptr;  // Not owned: it owns this view.
};

NSMutableDictionary* heightCache(ListView* self) {
  return objc::readIvar<NSMutableDictionary>(self, "_heightForListItemCache");
}

SBAwayListItem* itemAt(ListView* self, NSIndexPath* indexPath) {
  SBLockScreenNotificationListController* const controller = stateOf<ListViewState>(self).controller;
  return static_cast<SBAwayListItem*>(controller->listItemAtIndexPath(indexPath));
}

ListView* initWithFrame(ListView* self, SEL selector, CGRect frame) {
  self = objc::sendSuper<ListView*>(objc::classOf<UIView>(), self, selector, frame);
  objc::writeIvar(self, "_heightForListItemCache", NSMutableDictionary::dictionary());
  // Rows that are scrolled out fade away before clock and hint.
  constexpr CGFloat kEdgeFade = 10;
  stateOf<ViewState>(self).edgeFade = kEdgeFade;
  auto& table = stateOf<ListViewState>(self).table;
  table = makeView<UITableView>({{}, frame.size});
  table->setAutoresizingMask(UIView::kFlexibleWidth | UIView::kFlexibleHeight);
  table->setDataSource(self);
  table->setDelegate(self);
  self->addSubview(table.get());
  return self;
}

NSInteger numberOfRows(ListView* self, SEL, UITableView*, NSInteger /*section*/) {
  return static_cast<NSInteger>(objc::send<"count", NSUInteger>(stateOf<ListViewState>(self).controller));
}

CGFloat heightForRow(ListView* self, SEL, UITableView*, NSIndexPath* indexPath) {
  SBAwayListItem* const item = itemAt(self, indexPath);
  if (item == nullptr) return 0;
  auto* known = static_cast<NSNumber*>(heightCache(self)->objectForKey(item));
  if (known == nullptr) {
    known = NSNumber::numberWithFloat(static_cast<float>(heightOfItem(item)));
    heightCache(self)->setObject(known, item);
  }
  return known->floatValue();
}

UITableViewCell* cellForRow(ListView* self, SEL, UITableView* table, NSIndexPath* indexPath) {
  NSString* const kind = "SBLockScreenBulletinCell"_ns;
  auto cell = objc::Owned<SBLockScreenBulletinCell>::retain(
      static_cast<SBLockScreenBulletinCell*>(table->dequeueReusableCell(kind)));
  if (!cell) {
    cell = objc::makeWith<SBLockScreenBulletinCell, "initWithStyle:reuseIdentifier:">(NSInteger{0}, kind);
  }
  if (SBAwayListItem* const item = itemAt(self, indexPath); item != nullptr) showItem(cell.get(), item);
  return cell.autorelease();
}

bool canEditRow(ListView* self, SEL, UITableView*, NSIndexPath* indexPath) {
  return itemAt(self, indexPath)->canBeClearedByNotificationCenter();
}

void didSelectRow(ListView* self, SEL, UITableView*, NSIndexPath* indexPath) {
  if (SBAwayListItem* const item = itemAt(self, indexPath); item != nullptr) launch(item);
}

// What has just come stands out; the further down a row stands, the paler it is.
CGFloat contentAlphaAt(double top, double sightHeight) {
  constexpr double kPalest = 0.55;
  const double depth = sightHeight > 0 ? std::clamp(top / sightHeight, 0.0, 1.0) : 0;
  return 1 - (1 - kPalest) * depth;
}

void layoutSubviews(ListView* self, SEL) {
  UITableView* const table = tableOf(self);
  table->layoutIfNeeded();
  const CGRect sight = table->bounds();
  for (const TableState::Row& row : stateOf<TableState>(table).rows) {
    if (!row.cell) continue;
    objc::send<"setContentAlpha:">(row.cell.get(),
                                   contentAlphaAt(row.top - sight.origin.y, sight.size.height));
  }
}

}  // namespace

ClassDefinition sbLockScreenNotificationListView() {
  return {.name = "SBLockScreenNotificationListView",
          .superclass = "UIView",
          .ivars = {{"_heightForListItemCache"}},
          .state = state<ListViewState>(),
          .methods = {
              method("initWithFrame:", initWithFrame),
              method("layoutSubviews", layoutSubviews),
              method("tableView:numberOfRowsInSection:", numberOfRows),
              method("tableView:heightForRowAtIndexPath:", heightForRow),
              method("tableView:cellForRowAtIndexPath:", cellForRow),
              method("tableView:canEditRowAtIndexPath:", canEditRow),
              method("tableView:didSelectRowAtIndexPath:", didSelectRow),
          }};
}

objc::Owned<ListView> makeListView(SBLockScreenNotificationListController* controller, CGRect frame) {
  auto listView = makeView<ListView, "SBLockScreenNotificationListView">(frame);
  stateOf<ListViewState>(listView.get()).controller = controller;
  return listView;
}

void forgetController(ListView* listView) { stateOf<ListViewState>(listView).controller = nullptr; }

void reloadRows(ListView* listView) {
  heightCache(listView)->removeAllObjects();
  tableOf(listView)->reloadData();
  listView->setNeedsLayout();
}

void scrollToRow(ListView* listView, std::size_t row) {
  UITableView* const table = tableOf(listView);
  const auto& rows = stateOf<TableState>(table).rows;
  if (rows.empty()) return;
  const double contentHeight = rows.back().top + rows.back().height;
  const double furthest = std::max(contentHeight - table->bounds().size.height, 0.0);
  const double offset = std::min<double>(rows[std::min(row, rows.size() - 1)].top, furthest);
  table->setContentOffset(CGPoint{0, static_cast<CGFloat>(offset)});
  listView->setNeedsLayout();
}

UITableView* tableOf(ListView* listView) { return stateOf<ListViewState>(listView).table.get(); }

std::vector<ShownRow> shownRows(ListView* listView) {
  UITableView* const table = tableOf(listView);
  const CGRect sight = table->bounds();
  std::vector<ShownRow> shown;
  for (const TableState::Row& row : stateOf<TableState>(table).rows) {
    shown.push_back({{{0, row.top - sight.origin.y}, {sight.size.width, row.height}},
                     static_cast<SBLockScreenBulletinCell*>(row.cell.get())});
  }
  return shown;
}

}  // namespace phone
