#include "phone/springboard/sb_lock_screen_notification_bulletin_banner_item.h"

#include "phone/springboard/definitions.h"
#include "platform/springboard/sb_away_list_item.h"
#include "platform/springboard/sb_lock_screen_notification_bulletin_banner_item.h"

namespace phone {

namespace {

struct BannerItemState {
  objc::Owned<SBAwayListItem> bulletinListItem;
};

}  // namespace

ClassDefinition sbLockScreenNotificationBulletinBannerItem() {
  return {.name = "SBLockScreenNotificationBulletinBannerItem",
          .superclass = "NSObject",
          .state = state<BannerItemState>(),
          .methods = {getter<&BannerItemState::bulletinListItem>("_bulletinListItem")}};
}

SBLockScreenNotificationBulletinBannerItem* bannerFor(SBAwayListItem* item) {
  auto banner = objc::make<SBLockScreenNotificationBulletinBannerItem>();
  stateOf<BannerItemState>(banner.get()).bulletinListItem = objc::Owned<SBAwayListItem>::retain(item);
  return banner.autorelease();
}

}  // namespace phone
