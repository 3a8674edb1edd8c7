#include "phone/calendarui/item_table.h"

#include "platform/foundation/foundation_version.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_string.h"
#include "platform/uikit/ui_label.h"

namespace phone {

namespace {

// iOS 7 knows no subsections; later releases ask through them, and the plain method is their fallback.
UITableViewCell* cellOf(NSObject* item, NSUInteger index) {
  if (!isIos8OrLater()) {
    return objc::send<"cellForSubitemAtIndex:", UITableViewCell*>(item, index);
  }
  return objc::send<"cellForSubitemAtIndex:inSubsection:", UITableViewCell*>(item, index, NSUInteger{0});
}

UISwitch* switchBelow(UIView* view) {
  if (auto* const toggle = objc::asKind<UISwitch>(view)) return toggle;
  NSArray* const subviews = view->subviews();
  for (NSUInteger i = 0; i < subviews->count(); ++i) {
    if (auto* const found = switchBelow(static_cast<UIView*>(subviews->objectAtIndex(i)))) return found;
  }
  return nullptr;
}

/// The view's rectangle in the coordinates of a view that holds it at some depth.
CGRect frameIn(UIView* ancestor, UIView* view) {
  CGRect frame = view->frame();
  for (UIView* above = view->superview(); above != nullptr && above != ancestor; above = above->superview()) {
    const CGPoint origin = above->frame().origin;
    frame.origin = {frame.origin.x + origin.x, frame.origin.y + origin.y};
  }
  return frame;
}

std::string textOf(UILabel* label) {
  const char* const text = label->text()->UTF8String();
  return text == nullptr ? "" : text;
}

}  // namespace

void ItemTable::load(const std::vector<std::vector<NSObject*>>& items) {
  groups.clear();
  for (const auto& group : items) {
    std::vector<objc::Owned<UITableViewCell>> cells;
    for (NSObject* const item : group) {
      const auto rows = objc::send<"numberOfSubitems", NSUInteger>(item);
      for (NSUInteger row = 0; row < rows; ++row) {
        UITableViewCell* const cell = cellOf(item, row);
        if (cell != nullptr) cells.push_back(objc::Owned<UITableViewCell>::retain(cell));
      }
    }
    if (!cells.empty()) groups.push_back(std::move(cells));
  }
}

Row rowOf(UITableViewCell* cell) {
  Row row{
      .text = textOf(cell->textLabel()), .detail = textOf(cell->detailTextLabel()), .frame = cell->frame()};
  if (UISwitch* const found = switchIn(cell)) {
    row.switchOn = found->isOn();
    row.switchFrame = frameIn(cell->superview(), found);
  }
  return row;
}

UISwitch* switchIn(UITableViewCell* cell) { return switchBelow(cell); }

}  // namespace phone
