#include "tavimo/lockscreen/presentation/row_height.h"

#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_number.h"
#include "platform/objc/ivar.h"
#include "platform/uikit/string_drawing.h"
#include "tavimo/lockscreen/list_items.h"
#include "tavimo/lockscreen/lock_screen_state.h"
#include "tavimo/lockscreen/presentation/cell_metrics.h"
#include "tavimo/settings/checked_objects.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

double lineHeight(NSInteger points) {
  return sizeWithFont("AAAAAAAAAAA"_ns, UIFont::systemFontOfSize(static_cast<CGFloat>(points))).height;
}

double ownRowHeight(BBBulletin* bulletin) {
  const double titleHeight = lineHeight(textSize);
  const bool hasSecondLine =
      displayLocation && (sameHeightRows || asText(bulletin->subtitle())->length() > 0);
  if (!hasSecondLine) return titleHeight + kSpaceAboveFirstLine + kSpaceBelowLastLine;
  return titleHeight + lineHeight(subtitleTextSize) + kSpaceAboveFirstLine + kSpaceBelowLastLine;
}

/// The row's item when it is the plug-in's own, else none.
SBAwayBulletinListItem* ownItemAt(NSIndexPath* indexPath) {
  logDebug<"%@ heightForRowAtIndexPath">();
  SBAwayBulletinListItem* const item = asBulletinListItem(listItemAt(indexPath));
  if (item == nullptr) {
    logDebug<"%@ heightForRowAtIndexPath item is NOT of expected class">();
    return nullptr;
  }
  BBBulletin* const bulletin = recordOf(item);
  if (publisherOf(bulletin) == Publisher::kOwn) return item;
  if (debugMode) {
    logAlways("%@ heightForRowAtIndexPath, this is NOT our item, id is %@"_ns, bulletin->bulletinID());
  }
  return nullptr;
}

}  // namespace

CGFloat heightForRow(SBLockScreenNotificationListView* self, SEL selector, UITableView* tableView,
                     NSIndexPath* indexPath) {
  if (!isEnabled) return heightForRowDisplaced(self, selector, tableView, indexPath);
  SBAwayBulletinListItem* const item = ownItemAt(indexPath);
  if (item == nullptr) {
    if (wallpaperBlurMode == 1) sBLockScreenView->addLockContentUnderlay("OrvNotificationList"_ns);
    return heightForRowDisplaced(self, selector, tableView, indexPath);
  }
  const double height = ownRowHeight(item->activeBulletin());
  objc::readIvar<NSMutableDictionary>(self, "_heightForListItemCache")
      ->setObject(NSNumber::numberWithFloat(static_cast<float>(height)), item);
  return static_cast<CGFloat>(height);
}

}  // namespace tavimo
