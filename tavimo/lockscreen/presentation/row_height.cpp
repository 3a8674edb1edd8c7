#include "tavimo/lockscreen/presentation/row_height.h"

#include "contract/settings.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_number.h"
#include "platform/objc/ivar.h"
#include "platform/uikit/string_drawing.h"
#include "tavimo/lockscreen/list_items.h"
#include "tavimo/lockscreen/lock_screen_state.h"
#include "tavimo/lockscreen/pass_through.h"
#include "tavimo/lockscreen/presentation/cell_metrics.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

double lineHeight(NSInteger points) {
  return sizeWithFont("AAAAAAAAAAA"_ns, UIFont::systemFontOfSize(static_cast<CGFloat>(points))).height;
}

double ownRowHeight(BBBulletin* bulletin) {
  const double titleHeight = lineHeight(textSize);
  const bool hasSecondLine =
      displayLocation && (sameHeightRows || objc::asKind<NSString>(bulletin->subtitle())->length() > 0);
  if (!hasSecondLine) return titleHeight + kSpaceAboveFirstLine + kSpaceBelowLastLine;
  return titleHeight + lineHeight(subtitleTextSize) + kSpaceAboveFirstLine + kSpaceBelowLastLine;
}

/// The record of the row's item when the item is the plug-in's own, else nil.
BBBulletin* ownRecordOfRow(NSObject* item) {
  SBAwayBulletinListItem* const listItem = asBulletinListItem(item);
  if (listItem == nullptr) {
    TAVIMO_DEBUG(log<"heightForRowAtIndexPath item is NOT of expected class">());
    return nullptr;
  }
  BBBulletin* const bulletin = recordOf(listItem);
  if (publisherOf(bulletin) == Publisher::kOwn) return bulletin;
  TAVIMO_DEBUG(log<"heightForRowAtIndexPath, this is NOT our item, id is %@">(bulletin->bulletinID()));
  return nullptr;
}

TAVIMO_OWN_WORK CGFloat heightWhileEnabled(SBLockScreenNotificationListView* self, SEL selector,
                                           UITableView* tableView, NSIndexPath* indexPath) {
  TAVIMO_DEBUG(log<"heightForRowAtIndexPath">());
  NSObject* const item = listItemAt(indexPath);
  BBBulletin* const bulletin = ownRecordOfRow(item);
  if (bulletin == nullptr) {
    if (wallpaperBlurMode == contract::kBlurNotForEventsAlone)
      sBLockScreenView->addLockContentUnderlay("OrvNotificationList"_ns);
    return heightForRowDisplaced(self, selector, tableView, indexPath);
  }
  const double height = ownRowHeight(bulletin);
  objc::readIvar<NSMutableDictionary>(self, "_heightForListItemCache")
      ->setObject(NSNumber::numberWithFloat(static_cast<float>(height)), item);
  return static_cast<CGFloat>(height);
}

}  // namespace

CGFloat heightForRow(SBLockScreenNotificationListView* self, SEL selector, UITableView* tableView,
                     NSIndexPath* indexPath) {
  if (!isEnabled) return heightForRowDisplaced(self, selector, tableView, indexPath);
  return heightWhileEnabled(self, selector, tableView, indexPath);
}

}  // namespace tavimo
