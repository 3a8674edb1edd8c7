// Tables: which rows have cells, where they lie, and which cells come back.
#include "phone/uikit/ui_table_view.h"
#include "platform/foundation/ns_array.h"
#include "tests/uikit/uikit_test.h"

namespace phone {
namespace {

struct SourceState {
  NSInteger sections = 1;
  NSInteger rows = 100;
  /// None: the cells cannot be reused.
  NSString* identifier = nullptr;
  int cellsMade = 0;
  int heightsAsked = 0;
  NSInteger selectedRow = -1;
};

NSInteger numberOfSections(NSObject* self, SEL, UITableView*) { return stateOf<SourceState>(self).sections; }
NSInteger numberOfRows(NSObject* self, SEL, UITableView*, NSInteger) {
  return stateOf<SourceState>(self).rows;
}
CGFloat heightForRow(NSObject* self, SEL, UITableView*, NSIndexPath* path) {
  ++stateOf<SourceState>(self).heightsAsked;
  return path->row() % 2 == 0 ? 50 : 30;
}
UITableViewCell* cellForRow(NSObject* self, SEL, UITableView* table, NSIndexPath*) {
  auto& source = stateOf<SourceState>(self);
  auto* const spare =
      objc::send<"dequeueReusableCellWithIdentifier:", UITableViewCell*>(table, source.identifier);
  if (spare != nullptr) return spare;
  ++source.cellsMade;
  return objc::Owned<UITableViewCell>::adopt(
             objc::send<"initWithStyle:reuseIdentifier:", UITableViewCell*>(
                 objc::sendToClass<UITableViewCell, "alloc", id>(), NSInteger{0}, source.identifier))
      .autorelease();
}
void didSelect(NSObject* self, SEL, UITableView*, NSIndexPath* path) {
  stateOf<SourceState>(self).selectedRow = path->row();
}

class Tables : public UIKitTest {
 protected:
  Tables() {
    registerClass({.name = "Source",
                   .superclass = "NSObject",
                   .state = state<SourceState>(),
                   .methods = {method("numberOfSectionsInTableView:", numberOfSections),
                               method("tableView:numberOfRowsInSection:", numberOfRows),
                               method("tableView:heightForRowAtIndexPath:", heightForRow),
                               method("tableView:cellForRowAtIndexPath:", cellForRow),
                               method("tableView:didSelectRowAtIndexPath:", didSelect)}});
    object_ = objc::make<NSObject, "Source">();
    table_ = makeView<UITableView>({{0, 0}, {320, 200}});
    objc::send<"setDataSource:">(table_.get(), object_.get());
    objc::send<"setDelegate:">(table_.get(), object_.get());
  }
  SourceState& source() { return stateOf<SourceState>(object_.get()); }
  void layout() { objc::send<"layoutIfNeeded">(table_.get()); }
  void scrollTo(double y) {
    objc::send<"setContentOffset:">(table_.get(), CGPoint{0, y});
    layout();
  }
  NSArray* cells() { return objc::send<"visibleCells", NSArray*>(table_.get()); }
  UITableViewCell* cellAt(NSInteger row, NSInteger section = 0) {
    return objc::send<"cellForRowAtIndexPath:", UITableViewCell*>(table_.get(),
                                                                  NSIndexPath::indexPathForRow(row, section));
  }

  objc::Owned<NSObject> object_;
  objc::Owned<UITableView> table_;
};

TEST_F(Tables, OnlyRowsInSightHaveCellsInTheirPlaces) {
  layout();
  // 50 + 30 + 50 + 30 + 50 passes the 200 points in the fifth row.
  EXPECT_EQ(cells()->count(), 5U);
  EXPECT_EQ(source().heightsAsked, 100);
  EXPECT_EQ((objc::send<"contentSize", CGSize>(table_.get()).height), 50 * 80);
  for (NSInteger row = 0; row < 5; ++row) {
    UITableViewCell* const cell = cellAt(row);
    ASSERT_NE(cell, nullptr) << row;
    EXPECT_EQ(cell->frame().origin.y, row / 2 * 80 + row % 2 * 50) << row;
    EXPECT_EQ(cell->frame().size.width, 320) << row;
    EXPECT_EQ(table_->indexPathForCell(cell)->row(), row);
  }
  EXPECT_EQ(cellAt(5), nullptr);
  EXPECT_EQ(cellAt(-1), nullptr);
  EXPECT_EQ(cellAt(0, 1), nullptr);
  UITableViewCell* const first = cellAt(0);
  scrollTo(800);
  EXPECT_EQ(table_->indexPathForCell(cellAt(20))->row(), 20);
  EXPECT_EQ(cellAt(0), nullptr);
  EXPECT_EQ(table_->indexPathForCell(first), nullptr);
  EXPECT_EQ(table_->indexPathForCell(nullptr), nullptr);
}

TEST_F(Tables, CellsComeBackOnlyWhenTheyHaveAnIdentifier) {
  source().identifier = "row"_ns;
  layout();
  const int made = source().cellsMade;
  for (int y = 0; y <= 3000; y += 40) scrollTo(y);
  EXPECT_LE(source().cellsMade, made + 2);
  source().identifier = nullptr;
  source().cellsMade = 0;
  objc::send<"reloadData">(table_.get());
  scrollTo(0);
  scrollTo(2000);
  scrollTo(0);
  EXPECT_EQ(source().cellsMade, 15);
}

TEST_F(Tables, ReloadAsksEverythingAgain) {
  layout();
  source().sections = 2;
  source().rows = 1;
  objc::send<"reloadData">(table_.get());
  layout();
  EXPECT_EQ(cells()->count(), 2U);
  EXPECT_EQ(table_->subviews()->count(), 2U);
  EXPECT_EQ(table_->indexPathForCell(cellAt(0, 1))->section(), 1);
  source().rows = 0;
  objc::send<"reloadData">(table_.get());
  layout();
  EXPECT_EQ(cells()->count(), 0U);
}

TEST_F(Tables, TapReachesTheDelegateForRowsThatAreThere) {
  EXPECT_TRUE(tapRow(table_.get(), 0, 7));
  EXPECT_EQ(source().selectedRow, 7);
  EXPECT_FALSE(tapRow(table_.get(), 0, 100));
  EXPECT_FALSE(tapRow(table_.get(), 3, 0));
  EXPECT_EQ(source().selectedRow, 7);
}

}  // namespace
}  // namespace phone
