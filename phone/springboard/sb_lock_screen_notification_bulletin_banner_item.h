// SBLockScreenNotificationBulletinBannerItem, what iOS 8 and later asks about when a record wants the screen.
#pragma once

#include "platform/objc/owned.h"

class SBAwayListItem;
class SBLockScreenNotificationBulletinBannerItem;

namespace phone {

/// A banner for that item of the list (borrowed).
SBLockScreenNotificationBulletinBannerItem* bannerFor(SBAwayListItem* item);

}  // namespace phone
