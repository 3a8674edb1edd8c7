#include "tavimo/lockscreen/presentation/cell_layout.h"

#include <algorithm>

#include "platform/foundation/foundation_version.h"
#include "platform/objc/ivar.h"
#include "platform/uikit/string_drawing.h"
#include "platform/uikit/ui_label.h"
#include "tavimo/lockscreen/color_tag.h"
#include "tavimo/lockscreen/list_items.h"
#include "tavimo/lockscreen/lock_screen_state.h"
#include "tavimo/lockscreen/pass_through.h"
#include "tavimo/lockscreen/presentation/cell_metrics.h"
#include "tavimo/lockscreen/presentation/cell_row.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

/// A rectangle in the label's coordinates, from doubles.
CGRect rect(double x, double y, double width, double height) {
  return {{static_cast<CGFloat>(x), static_cast<CGFloat>(y)},
          {static_cast<CGFloat>(width), static_cast<CGFloat>(height)}};
}

void styleLabel(UILabel* label, NSInteger points, UIColor* color) {
  label->setFont(label->font()->fontWithSize(static_cast<CGFloat>(points)));
  label->setTextColor(color);
}

void styleLabels(SBLockScreenBulletinCell* cell, BBBulletin* bulletin) {
  // The message carries the colour tag.
  cell->secondaryLabel()->setTextColor(UIColor::clearColor());
  styleLabel(cell->primaryLabel(), textSize,
             titleColorSameAsCalendarColor ? taggedColor(bulletin) : textColor);
  styleLabel(cell->subtitleLabel(), subtitleTextSize, subtitleTextColor);
  styleLabel(cell->relevanceDateLabel(), dateTextSize, dateTextColor);
  objc::readIvar<UILabel>(cell, "_unlockTextLabel")->setText(""_ns);
}

CGSize textSizeOf(UILabel* label) { return sizeWithFont(label->text(), label->font()); }

double dateLeft(double width, double titleWidth, double dateWidth) {
  if (rightAlignedDate) {
    const double x = (width - dateWidth) + -kRightMargin;
    TAVIMO_DEBUG(log<"date is right aligned, x=%f">(x));
    return x;
  }
  const double x = titleWidth + kTextLeft + kTitleDateGap;
  TAVIMO_DEBUG(log<"date is not right aligned, x=%f">(x));
  return x;
}

/// Title and date stand on one line, as low as the taller of them needs; the title is cut so that the date
/// fits beside it. The subtitle starts right under the title.
void placeLabels(SBLockScreenBulletinCell* cell) {
  UILabel* const titleLabel = cell->primaryLabel();
  UILabel* const subtitleLabel = cell->subtitleLabel();
  UILabel* const dateLabel = cell->relevanceDateLabel();
  const CGSize date = textSizeOf(dateLabel);
  const CGSize title = textSizeOf(titleLabel);
  const CGSize subtitle = textSizeOf(subtitleLabel);
  TAVIMO_DEBUG(log<"needed date size: %@, needed title size: %@, needed subtitle size: %@">(
      NSStringFromCGSize(date), NSStringFromCGSize(title), NSStringFromCGSize(subtitle)));

  const double width = cell->contentBounds().size.width;
  const double firstLineBottom = std::max<double>(title.height, date.height) + kSpaceAboveFirstLine;
  const double widest = width + -kTextLeft + -kRightMargin;
  const double titleWidth = std::min<double>(title.width, (widest - date.width) + -kTitleDateGap);
  titleLabel->setFrame(rect(kTextLeft, firstLineBottom - title.height, titleWidth, title.height));

  const CGRect dateFrame =
      rect(dateLeft(width, titleWidth, date.width), firstLineBottom - date.height, date.width, date.height);
  dateLabel->setFrame(dateFrame);
  TAVIMO_DEBUG(log<"date frame is %@">(NSStringFromCGRect(dateFrame)));

  const CGRect subtitleFrame =
      rect(kTextLeft, (firstLineBottom - title.height) + title.height + kSpaceBetweenLines,
           std::min<double>(subtitle.width, widest), subtitle.height);
  subtitleLabel->setFrame(subtitleFrame);
  TAVIMO_DEBUG(log<"subtitle frame is %@">(NSStringFromCGRect(subtitleFrame)));

  cellWithoutSubtitleHeight = title.height + kSpaceAboveFirstLine + kSpaceBelowLastLine;
  cellWithSubtitleHeight =
      title.height + kSpaceAboveFirstLine + kSpaceBetweenLines + subtitle.height + kSpaceBelowLastLine;
}

void setSeparators(SBLockScreenBulletinCell* cell) {
  if (isIos8OrLater()) {
    TAVIMO_DEBUG(log<"iOS 8+ separators">());
    cell->setSeparatorHidden(!showSeparatorLines);
    cell->setDrawsSeparatorAtTopOfSection(false);
  } else {
    TAVIMO_DEBUG(log<"iOS 7.1- separators">());
    cell->setDrawsSeparators(showSeparatorLines);
  }
}

TAVIMO_OWN_WORK void layOutOwnCell(SBLockScreenBulletinCell* cell) {
  NSObject* const item = listItemAt(indexPathOfCell(cell));
  logBare<"cell layoutSubviews. item class=%@. secondary color=%@">(
      NSStringFromClass(objc::send<"class", Class>(item)), cell->secondaryLabel()->textColor());
  BBBulletin* const bulletin = ownRecordOf(item);
  if (bulletin == nullptr) return;
  TAVIMO_DEBUG(log<"cell layoutSubviews, detected TVM cell">());
  styleLabels(cell, bulletin);
  placeLabels(cell);
  setSeparators(cell);
}

}  // namespace

void layoutSubviews(SBLockScreenBulletinCell* self, SEL selector) {
  layoutSubviewsDisplaced(self, selector);
  if (isEnabled) layOutOwnCell(self);
}

}  // namespace tavimo
