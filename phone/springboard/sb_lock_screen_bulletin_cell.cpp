#include "phone/springboard/sb_lock_screen_bulletin_cell.h"

#include <algorithm>

#include "phone/springboard/date_texts.h"
#include "phone/springboard/definitions.h"
#include "phone/springboard/list_order.h"
#include "phone/uikit/ui_color.h"
#include "phone/uikit/ui_font.h"
#include "phone/uikit/ui_graphics.h"
#include "phone/uikit/ui_view.h"
#include "platform/foundation/literal.h"
#include "platform/uikit/string_drawing.h"
#include "platform/uikit/ui_image.h"
#include "platform/uikit/ui_image_view.h"
#include "platform/uikit/ui_label.h"

namespace phone {

namespace {

using Cell = SBLockScreenBulletinCell;

constexpr double kLeftEdge = 47;
constexpr double kRightMargin = 10;
constexpr double kGap = 10;
constexpr double kVerticalMargin = 13;
constexpr double kIconSide = 24;

/// How each line of a row is written.
struct LineStyle {
  FontWeight weight;
  double points;
  double opacity;
};
constexpr LineStyle kTitle{FontWeight::kSemibold, 15, 1};
constexpr LineStyle kDate{FontWeight::kRegular, 12, 0.55};
constexpr LineStyle kSubtitle{FontWeight::kRegular, 14, 0.9};
constexpr LineStyle kMessage{FontWeight::kRegular, 14, 0.9};
constexpr LineStyle kUnlockHint{FontWeight::kRegular, 12, 0.45};

struct BulletinCellState {
  objc::Owned<UILabel> primaryLabel;
  objc::Owned<UILabel> relevanceDateLabel;
  objc::Owned<UILabel> subtitleLabel;
  objc::Owned<UILabel> secondaryLabel;
  objc::Owned<UIImageView> iconView;
  CGFloat contentAlpha = 1;
  bool drawsSeparator = true;
  bool drawsSeparatorAtTopOfSection = false;
};

BulletinCellState& stateOfCell(Cell* cell) { return stateOf<BulletinCellState>(cell); }

UILabel* unlockHint(Cell* cell) { return objc::readIvar<UILabel>(cell, "_unlockTextLabel"); }

objc::Owned<UILabel> makeLabel(Cell* cell, const LineStyle& style) {
  auto label = makeView<UILabel>();
  label->setFont(makeFont(style.weight, style.points).get());
  label->setTextColor(makeColor(greyColor(1, style.opacity)).get());
  cell->contentView()->addSubview(label.get());
  return label;
}

Cell* initWithStyle(Cell* self, SEL selector, NSInteger style, NSString* reuseIdentifier) {
  self = objc::sendSuper<Cell*>(objc::classOf<UITableViewCell>(), self, selector, style, reuseIdentifier);
  auto& cell = stateOfCell(self);
  cell.primaryLabel = makeLabel(self, kTitle);
  cell.relevanceDateLabel = makeLabel(self, kDate);
  cell.subtitleLabel = makeLabel(self, kSubtitle);
  cell.secondaryLabel = makeLabel(self, kMessage);
  objc::writeIvar(self, "_unlockTextLabel", makeLabel(self, kUnlockHint).get());
  cell.iconView = makeView<UIImageView>();
  cell.iconView->setContentMode(UIImageView::kAspectFit);
  self->contentView()->addSubview(cell.iconView.get());
  return self;
}

CGRect contentBounds(Cell* self, SEL) { return self->contentView()->bounds(); }

/// A line of text below the others; an empty one takes no room.
double placeLine(UILabel* label, double top, double mostWidth) {
  const CGSize size = sizeWithFont(label->text(), label->font());
  label->setFrame({{kLeftEdge, top}, {std::min<double>(size.width, mostWidth), size.height}});
  return top + size.height;
}

void layoutSubviews(Cell* self, SEL selector) {
  objc::sendSuper(objc::classOf<UITableViewCell>(), self, selector);
  const auto& cell = stateOfCell(self);
  const double width = self->contentBounds().size.width;
  const double mostWidth = std::max(width - kLeftEdge - kRightMargin, 0.0);
  const CGSize title = sizeWithFont(cell.primaryLabel->text(), cell.primaryLabel->font());
  const CGSize date = sizeWithFont(cell.relevanceDateLabel->text(), cell.relevanceDateLabel->font());
  const double firstLine = std::max(title.height, date.height);
  const double bottom = kVerticalMargin + firstLine;
  const double titleWidth = std::clamp<double>(mostWidth - date.width - kGap, 0, title.width);
  cell.primaryLabel->setFrame({{kLeftEdge, bottom - title.height}, {titleWidth, title.height}});
  cell.relevanceDateLabel->setFrame({{kLeftEdge + titleWidth + kGap, bottom - date.height}, date});
  // The icon stands beside the first line, in the middle of the margin.
  cell.iconView->setFrame(
      {{(kLeftEdge - kIconSide) / 2, kVerticalMargin + (firstLine - kIconSide) / 2}, {kIconSide, kIconSide}});
  double next = placeLine(cell.subtitleLabel.get(), bottom, mostWidth);
  next = placeLine(cell.secondaryLabel.get(), next, mostWidth);
  placeLine(unlockHint(self), next, mostWidth);
}

void setContentAlpha(Cell* self, SEL, CGFloat alpha) {
  stateOfCell(self).contentAlpha = alpha;
  self->contentView()->setAlpha(alpha);
}

void setSeparatorHidden(Cell* self, SEL, bool hidden) { stateOfCell(self).drawsSeparator = !hidden; }

void drawSeparator(cairo_t* canvas, double y, double width) {
  constexpr double kThickness = 0.5;
  cairo_rectangle(canvas, kLeftEdge, y, width - kLeftEdge, kThickness);
  constexpr double kOpacity = 0.22;
  cairo_set_source_rgba(canvas, 1, 1, 1, kOpacity);
  cairo_fill(canvas);
}

void drawRect(Cell* self, SEL, CGRect) {
  cairo_t* const canvas = currentCanvas();
  if (canvas == nullptr) return;
  const auto& cell = stateOfCell(self);
  const CGSize size = self->bounds().size;
  if (cell.drawsSeparator) drawSeparator(canvas, size.height - 0.5, size.width);
  if (cell.drawsSeparator && cell.drawsSeparatorAtTopOfSection && self->frame().origin.y <= 0) {
    drawSeparator(canvas, 0, size.width);
  }
}

NSString* hintFor(SBAwayListItem* item) { return bulletinOf(item) == nullptr ? ""_ns : "slide to view"_ns; }

double lineHeight(NSString* text, const LineStyle& style) {
  return text->length() == 0 ? 0 : TypeFace::find(style.weight, style.points)->lineHeight();
}

}  // namespace

ClassDefinition sbLockScreenBulletinCell() {
  using State = BulletinCellState;
  return {.name = "SBLockScreenBulletinCell",
          .superclass = "UITableViewCell",
          .ivars = {{"_unlockTextLabel"}},
          .state = state<State>(),
          .methods = {
              method("initWithStyle:reuseIdentifier:", initWithStyle),
              getter<&State::primaryLabel>("primaryLabel"),
              getter<&State::relevanceDateLabel>("relevanceDateLabel"),
              getter<&State::subtitleLabel>("subtitleLabel"),
              getter<&State::secondaryLabel>("secondaryLabel"),
              method("contentBounds", contentBounds),
              method("layoutSubviews", layoutSubviews),
              method("drawRect:", drawRect),
              method("setContentAlpha:", setContentAlpha),
              setter<&State::drawsSeparator>("setDrawsSeparators:", kUntilIos7),
              method("_setSeparatorHidden:", setSeparatorHidden, kSinceIos8),
              setter<&State::drawsSeparatorAtTopOfSection>("_setDrawsSeparatorAtTopOfSection:", kSinceIos8),
          }};
}

void showItem(Cell* cell, SBAwayListItem* item) {
  const auto& state = stateOfCell(cell);
  BBBulletin* const bulletin = bulletinOf(item);
  state.primaryLabel->setText(item->title());
  state.relevanceDateLabel->setText(bulletin == nullptr ? nullptr : relevanceText(bulletin));
  state.subtitleLabel->setText(item->subtitle());
  state.secondaryLabel->setText(item->message());
  unlockHint(cell)->setText(hintFor(item));
  state.iconView->setImage(item->iconImage());
  cell->setNeedsLayout();
}

CGFloat heightOfItem(SBAwayListItem* item) {
  return kVerticalMargin + TypeFace::find(kTitle.weight, kTitle.points)->lineHeight() +
         lineHeight(item->subtitle(), kSubtitle) + lineHeight(item->message(), kMessage) +
         lineHeight(hintFor(item), kUnlockHint) + kVerticalMargin;
}

CellLayout layoutOf(Cell* cell) {
  const auto& state = stateOfCell(cell);
  const char* const dateText = state.relevanceDateLabel->text()->UTF8String();
  return {.dateText = dateText == nullptr ? "" : dateText,
          .icon = state.iconView->frame(),
          .title = state.primaryLabel->frame(),
          .date = state.relevanceDateLabel->frame(),
          .subtitle = state.subtitleLabel->frame(),
          .message = state.secondaryLabel->frame(),
          .contentAlpha = state.contentAlpha,
          .drawsSeparator = state.drawsSeparator};
}

}  // namespace phone
