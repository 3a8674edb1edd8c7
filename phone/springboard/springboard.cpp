#include "phone/springboard/springboard.h"

#include "phone/springboard/definitions.h"
#include "phone/springboard/list_row.h"

namespace phone {

namespace {

// The application itself. Its presence is what tells this process from every other.
ClassDefinition springBoard() { return {.name = "SpringBoard", .superclass = "UIApplication"}; }

}  // namespace

SpringBoardState& springBoardState() {
  // Never destroyed: the objects in it would be released after the runtime's own end.
  static auto& state = *new SpringBoardState;
  return state;
}

void launch(SBAwayListItem* item) {
  const ListRow row = listRowOf(item);
  springBoardState().launch = Launch{row.launchURL, row.launchBundleID};
}

void registerSpringBoard() {
  springBoardState() = {};
  registerClasses({springBoard, sbAwayListItem, sbAwayBulletinListItem, sbAwayCardListItem,
                   sbLockScreenNotificationBulletinBannerItem, sbLockScreenNotificationListController,
                   sbLockScreenBulletinCell, sbLockScreenNotificationListView,
                   sbLockScreenPluginOverlayContext, sbLockScreenView});
}

}  // namespace phone
