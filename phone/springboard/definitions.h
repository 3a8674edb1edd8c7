// The framework's class definitions; springboard.cpp registers them in order.
#pragma once

#include "phone/objc/class_definition.h"

namespace phone {

ClassDefinition sbAwayBulletinListItem();
ClassDefinition sbAwayCardListItem();
ClassDefinition sbAwayListItem();
ClassDefinition sbLockScreenBulletinCell();
ClassDefinition sbLockScreenNotificationBulletinBannerItem();
ClassDefinition sbLockScreenNotificationListController();
ClassDefinition sbLockScreenNotificationListView();
ClassDefinition sbLockScreenPluginOverlayContext();
ClassDefinition sbLockScreenView();

}  // namespace phone
