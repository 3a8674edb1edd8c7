#include "tavimo/lockscreen/presentation/item_behavior.h"

#include "tavimo/lockscreen/color_tag.h"
#include "tavimo/lockscreen/list_items.h"
#include "tavimo/settings/image_utilities.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

constexpr double kDotDiameter = 30.0;
constexpr double kLargeDotDiameter = 50.0;

/// The list item's record when the item is the plug-in's own, else none. Both callers are methods of the list
/// item class itself, so the record's identifier alone decides. Not every release's items can be asked for
/// it.
BBBulletin* ownRecord(SBAwayBulletinListItem* item) {
  // While disabled, asking what the item can do would only serve the debug message.
  if (!isEnabled && !debugMode) return nullptr;
  if (!item->respondsToSelector(objc::selector<"activeBulletin">())) {
    logDebug<"%@ SBAwayBulletinListItem not responding to the required selector, ignoring">();
    return nullptr;
  }
  if (!isEnabled) return nullptr;
  BBBulletin* const bulletin = item->activeBulletin();
  return publisherOf(bulletin) == Publisher::kOwn ? bulletin : nullptr;
}

UIImage* dot(BBBulletin* bulletin, double diameter) {
  return coloredDot(taggedColor(bulletin), diameter).autorelease();
}

}  // namespace

UIImage* iconImage(SBAwayBulletinListItem* self, SEL selector) {
  BBBulletin* const bulletin = ownRecord(self);
  if (bulletin == nullptr) return iconImageDisplaced(self, selector);
  if (iconFile->isEqualToString("NONE"_ns)) return nullptr;
  if (iconFile->isEqualToString("DOT"_ns)) return dot(bulletin, kDotDiameter);
  if (iconFile->isEqualToString("DOT_LARGE"_ns)) return dot(bulletin, kLargeDotDiameter);
  return icon;
}

bool canBeClearedByNotificationCenter(SBAwayBulletinListItem* self, SEL selector) {
  return ownRecord(self) == nullptr && canBeClearedDisplaced(self, selector);
}

bool canEditRow(SBLockScreenNotificationListView* self, SEL selector, UITableView* tableView,
                NSIndexPath* indexPath) {
  if (isEnabled) {
    if (SBAwayBulletinListItem* const item = asBulletinListItem(listItemAt(indexPath)); item != nullptr) {
      BBBulletin* const bulletin = recordOf(item);
      if (debugMode) NSLog("Cell active bulletin: %@"_ns, bulletin->bulletinID());
      if (publisherOf(bulletin) == Publisher::kOwn) return false;
    }
  }
  return canEditRowDisplaced(self, selector, tableView, indexPath);
}

}  // namespace tavimo
