#include "phone/calendarui/row_item.h"

#include "platform/uikit/ui_color.h"
#include "platform/uikit/ui_font.h"
#include "platform/uikit/ui_label.h"

namespace phone {

namespace {

NSUInteger oneSubitem(NSObject*, SEL) { return 1; }

UITableViewCell* noCell(NSObject*, SEL, NSUInteger) { return nullptr; }

UITableViewCell* cellInSubsection(NSObject* self, SEL, NSUInteger index, NSUInteger /*subsection*/) {
  return objc::send<"cellForSubitemAtIndex:", UITableViewCell*>(self, index);
}

struct RowLook {
  double height;
  double fontSize;
};

// Points. A field's row has the height and font of every table row.
RowLook lookOf(RowStyle style) {
  switch (style) {
    case RowStyle::kHeadline:
      return {40, 20};
    case RowStyle::kLine:
      return {22, 14};
    case RowStyle::kField:
    case RowStyle::kEmptyField:
      break;
  }
  return {44, 17};
}

UITableViewCell* makeCell(const RowText& row) {
  constexpr NSInteger kValueAtTheRight = 1;
  auto cell = objc::makeWith<UITableViewCell, "initWithStyle:reuseIdentifier:">(
      kValueAtTheRight, static_cast<NSString*>(nullptr));
  const RowLook look = lookOf(row.style);
  CGRect frame = cell->frame();
  frame.size.height = look.height;
  cell->setFrame(frame);
  cell->textLabel()->setFont(UIFont::systemFontOfSize(look.fontSize));
  cell->textLabel()->setText(NSString::stringWithUTF8String(row.text.c_str()));
  if (row.style == RowStyle::kEmptyField) cell->textLabel()->setTextColor(UIColor::grayColor());
  cell->detailTextLabel()->setText(NSString::stringWithUTF8String(row.detail.c_str()));
  return cell.autorelease();
}

}  // namespace

std::vector<MethodRows> plainItemMethods() {
  return {method("numberOfSubitems", oneSubitem), method("cellForSubitemAtIndex:", noCell),
          method("cellForSubitemAtIndex:inSubsection:", cellInSubsection)};
}

UITableViewCell* makeRowCell(const std::vector<RowText>& rows, NSUInteger index) {
  return index < rows.size() ? makeCell(rows[index]) : nullptr;
}

}  // namespace phone
