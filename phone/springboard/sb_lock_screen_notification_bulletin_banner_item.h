// SBLockScreenNotificationBulletinBannerItem, what iOS 8 and later asks about when a record wants the screen.
#pragma once

#include "phone/objc/class_definition.h"

class SBAwayListItem;
class SBLockScreenNotificationBulletinBannerItem;

namespace phone {

ClassDefinition sbLockScreenNotificationBulletinBannerItem();

/// A banner for that item of the list (borrowed).
SBLockScreenNotificationBulletinBannerItem* bannerFor(SBAwayListItem* item);

}  // namespace phone
