#include "phone/springboard/springboard.h"

#include "phone/springboard/sb_away_bulletin_list_item.h"
#include "phone/springboard/sb_away_card_list_item.h"
#include "phone/springboard/sb_away_list_item.h"
#include "phone/springboard/sb_lock_screen_notification_bulletin_banner_item.h"
#include "phone/springboard/sb_lock_screen_notification_list_controller.h"
#include "phone/springboard/sb_lock_screen_plugin_overlay_context.h"

namespace phone {

namespace {

// The application itself. Its presence is what tells this process from every other.
ClassDefinition springBoard() { return {.name = "SpringBoard", .superclass = "NSObject"}; }

}  // namespace

SpringBoardState& springBoardState() {
  static SpringBoardState state;
  return state;
}

void registerSpringBoard() {
  springBoardState() = {};
  registerClass(springBoard());
  registerClass(sbAwayListItem());
  registerClass(sbAwayBulletinListItem());
  registerClass(sbAwayCardListItem());
  registerClass(sbLockScreenNotificationBulletinBannerItem());
  registerClass(sbLockScreenNotificationListController());
  registerClass(sbLockScreenPluginOverlayContext());
}

}  // namespace phone
