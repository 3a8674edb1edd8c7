#include "phone/uikit/ui_table_view_cell.h"

#include <algorithm>

#include "phone/uikit/definitions.h"
#include "phone/uikit/ui_color.h"
#include "phone/uikit/ui_font.h"

namespace phone {

namespace {

/// The size of a cell that nobody gave one.
constexpr CGSize kDefaultSize = {320, 44};
constexpr double kMargin = 15;

/// The styles that put a second text at the right edge or below the first.
enum CellStyle : NSInteger { kStyleValue1 = 1, kStyleSubtitle = 3 };

UITableViewCell* initWithStyle(UITableViewCell* self, SEL, NSInteger style, NSString* reuseIdentifier) {
  self = objc::sendSuper<UITableViewCell*>(objc::classOf<UIView>(), self, objc::selector<"initWithFrame:">(),
                                           CGRect{{}, kDefaultSize});
  auto& cell = stateOf<CellState>(self);
  cell.style = style;
  cell.reuseIdentifier = objc::Owned<NSString>::adopt(objc::send<"copy", NSString*>(reuseIdentifier));
  cell.contentView = makeView<UIView>({{}, kDefaultSize});
  cell.contentView->setAutoresizingMask(UIView::kFlexibleWidth | UIView::kFlexibleHeight);
  self->addSubview(cell.contentView.get());
  return self;
}

UITableViewCell* initWithFrame(UITableViewCell* self, SEL, CGRect frame) {
  self = objc::send<"initWithStyle:reuseIdentifier:", UITableViewCell*>(self, NSInteger{0},
                                                                        static_cast<NSString*>(nullptr));
  if (frame.size.width > 0 && frame.size.height > 0) self->setFrame(frame);
  return self;
}

UILabel* labelIn(UITableViewCell* cell, objc::Owned<UILabel>& label, double points) {
  if (!label) {
    label = makeView<UILabel>();
    label->setFont(makeFont(FontWeight::kRegular, points).get());
    cell->contentView()->addSubview(label.get());
    cell->setNeedsLayout();
  }
  return label.get();
}

UILabel* textLabel(UITableViewCell* self, SEL) {
  constexpr double kPoints = 17;
  return labelIn(self, stateOf<CellState>(self).textLabel, kPoints);
}

UILabel* detailTextLabel(UITableViewCell* self, SEL) {
  auto& cell = stateOf<CellState>(self);
  if (cell.style == 0) return nullptr;
  const bool isNew = !cell.detailTextLabel;
  UILabel* const label = labelIn(self, cell.detailTextLabel, cell.style == kStyleSubtitle ? 12 : 17);
  if (isNew && cell.style == kStyleValue1) label->setTextColor(makeColor(greyColor(0.56, 1)).get());
  return label;
}

void layoutSubviews(UITableViewCell* self, SEL) {
  const auto& cell = stateOf<CellState>(self);
  const CGSize content = cell.contentView->bounds().size;
  const double width = std::max(content.width - 2 * kMargin, 0.0);
  if (!cell.detailTextLabel) {
    cell.textLabel.get()->setFrame({{kMargin, 0}, {width, content.height}});
    return;
  }
  const CGSize first = cell.textLabel.get()->sizeThatFits({});
  const CGSize second = cell.detailTextLabel->sizeThatFits({});
  if (cell.style == kStyleSubtitle) {
    const double top = (content.height - first.height - second.height) / 2;
    cell.textLabel.get()->setFrame({{kMargin, top}, {width, first.height}});
    cell.detailTextLabel->setFrame({{kMargin, top + first.height}, {width, second.height}});
    return;
  }
  constexpr double kGap = 10;
  const double firstWidth = std::min<double>(first.width, width);
  const double secondWidth = std::clamp<double>(width - firstWidth - kGap, 0, second.width);
  cell.textLabel.get()->setFrame({{kMargin, 0}, {firstWidth, content.height}});
  cell.detailTextLabel->setFrame({{content.width - kMargin - secondWidth, 0}, {secondWidth, content.height}});
}

void prepareForReuse(UITableViewCell*, SEL) {}

}  // namespace

ClassDefinition uiTableViewCell() {
  return {.name = "UITableViewCell",
          .superclass = "UIView",
          .state = state<CellState>(),
          .methods = {
              method("initWithFrame:", initWithFrame),
              method("initWithStyle:reuseIdentifier:", initWithStyle),
              getter<&CellState::reuseIdentifier>("reuseIdentifier"),
              getter<&CellState::contentView>("contentView"),
              method("textLabel", textLabel),
              method("detailTextLabel", detailTextLabel),
              method("layoutSubviews", layoutSubviews),
              method("prepareForReuse", prepareForReuse),
          }};
}

}  // namespace phone
