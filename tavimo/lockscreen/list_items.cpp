#include "tavimo/lockscreen/list_items.h"

#include <algorithm>
#include <string_view>

#include "contract/records.h"
#include "platform/objc/class_of.h"
#include "tavimo/lockscreen/lock_screen_state.h"

namespace tavimo {

namespace {

constexpr std::string_view kOwnPrefix = contract::kOwnRecordPrefix;
constexpr std::string_view kSiblingPrefix = contract::kSiblingRecordPrefix;

bool startsWith(const char16_t* characters, std::string_view prefix) {
  return std::equal(prefix.begin(), prefix.end(), characters);
}

}  // namespace

Publisher publisherOf(BBBulletin* bulletin) {
  NSString* const identifier = objc::asKind<NSString>(bulletin->bulletinID());
  char16_t start[kSiblingPrefix.size()];
  const NSUInteger length = identifier->length();
  const NSUInteger read = length < kSiblingPrefix.size() ? length : kSiblingPrefix.size();
  if (read < kOwnPrefix.size()) return Publisher::kOther;
  identifier->getCharacters(start, {0, read});
  if (startsWith(start, kOwnPrefix)) return Publisher::kOwn;
  const bool isSibling = read == kSiblingPrefix.size() && startsWith(start, kSiblingPrefix);
  return isSibling ? Publisher::kSibling : Publisher::kOther;
}

SBAwayBulletinListItem* asBulletinListItem(NSObject* item) {
  return objc::exactly<SBAwayBulletinListItem>(item);
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
