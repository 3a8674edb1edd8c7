// SBAwayBulletinListItem, the list item of one notification record.
#include "platform/springboard/sb_away_bulletin_list_item.h"

#include "phone/springboard/definitions.h"
#include "phone/springboard/stock_icons.h"
#include "platform/bulletinboard/bb_bulletin.h"
#include "platform/foundation/ns_string.h"

namespace phone {

namespace {

struct BulletinItemState {
  objc::Owned<BBBulletin> activeBulletin;
  objc::Owned<NSObject> observer;
};

BBBulletin* bulletinOf(SBAwayBulletinListItem* self) {
  return stateOf<BulletinItemState>(self).activeBulletin.get();
}

SBAwayBulletinListItem* initWithBulletin(SBAwayBulletinListItem* self, SEL, BBBulletin* bulletin,
                                         NSObject* observer) {
  auto& state = stateOf<BulletinItemState>(self);
  state.activeBulletin = objc::Owned<BBBulletin>::retain(bulletin);
  state.observer = objc::Owned<NSObject>::retain(observer);
  return self;
}

NSString* title(SBAwayBulletinListItem* self, SEL) { return bulletinOf(self)->title(); }
NSString* subtitle(SBAwayBulletinListItem* self, SEL) { return bulletinOf(self)->subtitle(); }

// Without leave to preview, the row says only who has something to tell.
NSString* message(SBAwayBulletinListItem* self, SEL) {
  BBBulletin* const bulletin = bulletinOf(self);
  return bulletin->showsMessagePreview() ? bulletin->message() : nullptr;
}

// Only dates that say when a record was published order the list. The date that it tells about may lie
// anywhere; records that have no other keep the order in which they came, below the dated ones.
NSDate* sortDate(SBAwayBulletinListItem* self, SEL) {
  BBBulletin* const bulletin = bulletinOf(self);
  NSDate* const published = bulletin->publicationDate();
  return published != nullptr ? published : bulletin->lastInterruptDate();
}

UIImage* iconImage(SBAwayBulletinListItem* self, SEL) {
  NSString* const section = bulletinOf(self)->section();
  return section->length() == 0 ? nullptr : notificationIcon(section->UTF8String());
}

bool canBeCleared(SBAwayBulletinListItem*, SEL) { return true; }

}  // namespace

ClassDefinition sbAwayBulletinListItem() {
  return {
      .name = "SBAwayBulletinListItem",
      .superclass = "SBAwayListItem",
      .state = state<BulletinItemState>(),
      .methods = {method("initWithBulletin:andObserver:", initWithBulletin),
                  getter<&BulletinItemState::activeBulletin>("activeBulletin"),
                  getter<&BulletinItemState::observer>("observer"), method("title", title),
                  method("subtitle", subtitle), method("message", message), method("sortDate", sortDate),
                  method("iconImage", iconImage), method("canBeClearedByNotificationCenter", canBeCleared)}};
}

}  // namespace phone
