#include "tavimo/lockscreen/list_items.h"

#include <string_view>

#include "platform/objc/class_name.h"
#include "tavimo/lockscreen/lock_screen_state.h"
#include "tavimo/settings/checked_objects.h"

namespace tavimo {

namespace {

constexpr std::u16string_view kOwnPrefix = u"Tavimo";
constexpr std::u16string_view kSiblingPrefix = u"Pellanor";

}  // namespace

Publisher publisherOf(BBBulletin* bulletin) {
  NSString* const identifier = asText(bulletin->bulletinID());
  char16_t start[kSiblingPrefix.size()];
  const NSUInteger length = identifier->length();
  const NSUInteger read = length < kSiblingPrefix.size() ? length : kSiblingPrefix.size();
  if (read < kOwnPrefix.size()) return Publisher::kOther;
  identifier->getCharacters(start, {0, read});
  const std::u16string_view beginning(start, read);
  if (beginning.starts_with(kOwnPrefix)) return Publisher::kOwn;
  return beginning == kSiblingPrefix ? Publisher::kSibling : Publisher::kOther;
}

SBAwayBulletinListItem* asBulletinListItem(NSObject* item) {
  return objc::isOfClass(item, "SBAwayBulletinListItem") ? static_cast<SBAwayBulletinListItem*>(item)
                                                         : nullptr;
}

BBBulletin* recordOf(SBAwayBulletinListItem* item) {
  return objc::sendIfResponds<"activeBulletin", BBBulletin*>(item);
}

Publisher publisherOfItem(NSObject* item) { return publisherOf(recordOf(asBulletinListItem(item))); }

BBBulletin* ownRecordOf(NSObject* item) {
  BBBulletin* const bulletin = recordOf(asBulletinListItem(item));
  return publisherOf(bulletin) == Publisher::kOwn ? bulletin : nullptr;
}

NSObject* listItemAt(NSIndexPath* indexPath) {
  return sBLockScreenNotificationListController->listItemAtIndexPath(indexPath);
}

}  // namespace tavimo
