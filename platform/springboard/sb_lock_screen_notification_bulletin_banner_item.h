// A banner, with the list item behind it.
#pragma once

#include "platform/foundation/ns_object.h"

class SBAwayBulletinListItem;

class SBLockScreenNotificationBulletinBannerItem : public NSObject {
 public:
  SBLockScreenNotificationBulletinBannerItem() = delete;

  SBAwayBulletinListItem* bulletinListItem() {
    return objc::send<"_bulletinListItem", SBAwayBulletinListItem*>(this);
  }
};
