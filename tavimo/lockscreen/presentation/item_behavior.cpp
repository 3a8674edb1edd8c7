#include "tavimo/lockscreen/presentation/item_behavior.h"

#include "contract/settings.h"
#include "tavimo/lockscreen/color_tag.h"
#include "tavimo/lockscreen/list_items.h"
#include "tavimo/lockscreen/pass_through.h"
#include "tavimo/settings/log.h"
#include "tavimo/support/image_utilities.h"

namespace tavimo {

namespace {

constexpr double kDotDiameter = 30.0;
constexpr double kLargeDotDiameter = 50.0;

/// The list item's record when the item is the plug-in's own, else nil. Both callers are methods of the list
/// item class itself, so the record's identifier alone decides. Not every release's items can be asked for
/// it; while disabled, that only serves the debug message.
TAVIMO_OWN_WORK BBBulletin* ownRecord(SBAwayBulletinListItem* item) {
  if (!item->respondsToSelector(objc::selector<"activeBulletin">())) {
    TAVIMO_DEBUG(log<"SBAwayBulletinListItem not responding to the required selector, ignoring">());
    return nullptr;
  }
  if (!isEnabled) return nullptr;
  BBBulletin* const bulletin = item->activeBulletin();
  return publisherOf(bulletin) == Publisher::kOwn ? bulletin : nullptr;
}

UIImage* dot(BBBulletin* bulletin, double diameter) {
  return coloredDot(taggedColor(bulletin), diameter).autorelease();
}

TAVIMO_OWN_WORK UIImage* iconImageWhenAsking(SBAwayBulletinListItem* item, SEL selector) {
  BBBulletin* const bulletin = ownRecord(item);
  if (bulletin == nullptr) return iconImageDisplaced(item, selector);
  if (iconFile->isEqualToString(constantText<contract::kNoIcon>())) return nullptr;
  if (iconFile->isEqualToString(constantText<contract::kDotIcon>())) return dot(bulletin, kDotDiameter);
  if (iconFile->isEqualToString(constantText<contract::kLargeDotIcon>()))
    return dot(bulletin, kLargeDotDiameter);
  return icon;
}

TAVIMO_OWN_WORK bool isOwnRow(NSIndexPath* indexPath) {
  SBAwayBulletinListItem* const item = asBulletinListItem(listItemAt(indexPath));
  if (item == nullptr) return false;
  BBBulletin* const bulletin = recordOf(item);
  TAVIMO_DEBUG(logBare<"Cell active bulletin: %@">(bulletin->bulletinID()));
  return publisherOf(bulletin) == Publisher::kOwn;
}

}  // namespace

UIImage* iconImage(SBAwayBulletinListItem* self, SEL selector) {
  return actsOrReports() ? iconImageWhenAsking(self, selector) : iconImageDisplaced(self, selector);
}

bool canBeClearedByNotificationCenter(SBAwayBulletinListItem* self, SEL selector) {
  if (actsOrReports() && ownRecord(self) != nullptr) return false;
  return canBeClearedDisplaced(self, selector);
}

bool canEditRow(SBLockScreenNotificationListView* self, SEL selector, UITableView* tableView,
                NSIndexPath* indexPath) {
  if (isEnabled && isOwnRow(indexPath)) return false;
  return canEditRowDisplaced(self, selector, tableView, indexPath);
}

}  // namespace tavimo
