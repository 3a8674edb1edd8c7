#include "phone/springboard/sb_lock_screen_notification_list_controller.h"

#include <utility>

#include "phone/springboard/definitions.h"
#include "phone/springboard/list_order.h"
#include "phone/springboard/sb_lock_screen_notification_bulletin_banner_item.h"
#include "phone/springboard/sb_lock_screen_notification_list_view.h"
#include "phone/springboard/sb_lock_screen_view.h"
#include "phone/springboard/springboard.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/springboard/sb_away_bulletin_list_item.h"
#include "platform/springboard/sb_lock_screen_notification_bulletin_banner_item.h"
#include "platform/uikit/ns_index_path.h"
#include "platform/uikit/ui_screen.h"

namespace phone {

namespace {

using Controller = SBLockScreenNotificationListController;

struct ListControllerState {
  objc::Owned<NSMutableDictionary> itemsByBulletinID;
  /// None while the phone is unlocked.
  objc::Owned<SBLockScreenNotificationListView> listView;
  SBLockScreenView* lockScreenView = nullptr;  // Not owned: it shows the list's view.
  bool listIsVisible = false;

  ~ListControllerState() {
    if (listView) forgetController(listView.get());
  }
};

Controller* init(Controller* self, SEL) {
  objc::writeIvar(self, "_listItems", NSMutableArray::array());
  objc::writeIvar(self, "_observer", objc::make<NSObject, "BBObserver">().get());
  stateOf<ListControllerState>(self).itemsByBulletinID =
      objc::Owned<NSMutableDictionary>::retain(NSMutableDictionary::dictionary());
  return self;
}

/// The list has an underlay of its own from its first item to its last.
void setListVisible(Controller* self, bool isVisible) {
  auto& state = stateOf<ListControllerState>(self);
  if (std::exchange(state.listIsVisible, isVisible) == isVisible) return;
  if (isVisible) {
    state.lockScreenView->addLockContentUnderlay("NotificationList"_ns);
  } else {
    state.lockScreenView->removeLockContentUnderlay("NotificationList"_ns);
  }
}

// Every change is followed by a count, and the underlay comes or goes. The layout comes later, as at the end
// of a turn of the run loop.
void showChange(Controller* self) {
  const auto& listView = stateOf<ListControllerState>(self).listView;
  if (!listView) return;
  const auto count = objc::send<"count", NSUInteger>(self);
  setListVisible(self, count > 0);
  reloadRows(listView.get());
}

SBAwayListItem* itemOf(Controller* self, BBBulletin* bulletin) {
  if (NSString* const identifier = bulletin->bulletinID(); identifier != nullptr) {
    auto& items = stateOf<ListControllerState>(self).itemsByBulletinID;
    return static_cast<SBAwayListItem*>(items->objectForKey(identifier));
  }
  NSMutableArray* const items = listItems(self);
  for (NSUInteger i = 0; i < items->count(); ++i) {
    auto* const item = static_cast<SBAwayListItem*>(items->objectAtIndex(i));
    if (bulletinOf(item) == bulletin) return item;
  }
  return nullptr;
}

void takeOut(Controller* self, SBAwayListItem* item) {
  // The list may be all that holds it.
  const auto kept = objc::Owned<SBAwayListItem>::retain(item);
  listItems(self)->removeObjectIdenticalTo(item);
  if (BBBulletin* const bulletin = bulletinOf(item);
      bulletin != nullptr && bulletin->bulletinID() != nullptr) {
    stateOf<ListControllerState>(self).itemsByBulletinID->removeObjectForKey(bulletin->bulletinID());
  }
}

// A record with the identifier of one that is listed replaces it, in silence.
void addBulletin(Controller* self, NSObject* observer, BBBulletin* bulletin) {
  if (bulletin == nullptr) return;
  auto item = objc::Owned<SBAwayBulletinListItem>::adopt(
      objc::sendToClass<SBAwayBulletinListItem, "alloc", SBAwayBulletinListItem*>()->initWithBulletin(
          bulletin, observer));
  SBAwayListItem* const replaced = itemOf(self, bulletin);
  if (replaced != nullptr) takeOut(self, replaced);
  insertByDate(listItems(self), item.get());
  if (NSString* const identifier = bulletin->bulletinID(); identifier != nullptr) {
    stateOf<ListControllerState>(self).itemsByBulletinID->setObject(item.get(), identifier);
  }
  showChange(self);
  if (replaced == nullptr) wakeScreenFor(self, item.get());
}

void addBulletinOnIos7(Controller* self, SEL, NSObject* observer, BBBulletin* bulletin, NSUInteger /*feed*/) {
  addBulletin(self, observer, bulletin);
}

void addBulletinSinceIos8(Controller* self, SEL, NSObject* observer, BBBulletin* bulletin,
                          NSUInteger /*feed*/, bool /*playLightsAndSirens*/, id /*reply*/) {
  addBulletin(self, observer, bulletin);
}

void removeBulletin(Controller* self, SEL, NSObject* /*observer*/, BBBulletin* bulletin) {
  if (bulletin == nullptr) return;
  SBAwayListItem* const item = itemOf(self, bulletin);
  if (item == nullptr) return;
  takeOut(self, item);
  showChange(self);
}

NSUInteger count(Controller* self, SEL) { return listItems(self)->count(); }

SBAwayListItem* listItemAtIndexPath(Controller* self, SEL, NSIndexPath* indexPath) {
  NSMutableArray* const items = listItems(self);
  const NSInteger row = indexPath->row();
  if (indexPath == nullptr || indexPath->section() != 0) return nullptr;
  if (row < 0 || static_cast<NSUInteger>(row) >= items->count()) return nullptr;
  return static_cast<SBAwayListItem*>(items->objectAtIndex(static_cast<NSUInteger>(row)));
}

void loadView(Controller* self, SEL) {
  auto& state = stateOf<ListControllerState>(self);
  state.listView = makeListView(self, UIScreen::mainScreen()->bounds());
  setListView(state.lockScreenView, state.listView.get());
  showChange(self);
}

void turnOnScreenIfNecessary(Controller*, SEL, NSObject* /*bulletinOrBanner*/) {
  springBoardState().screenIsOn = true;
}

}  // namespace

ClassDefinition sbLockScreenNotificationListController() {
  return {.name = "SBLockScreenNotificationListController",
          .superclass = "NSObject",
          .ivars = {{"_listItems"}, {"_observer"}},
          .state = state<ListControllerState>(),
          .methods = {method("init", init), method("loadView", loadView), method("count", count),
                      method("listItemAtIndexPath:", listItemAtIndexPath),
                      method("observer:addBulletin:forFeed:", addBulletinOnIos7, kUntilIos7),
                      method("observer:addBulletin:forFeed:playLightsAndSirens:withReply:",
                             addBulletinSinceIos8, kSinceIos8),
                      method("observer:removeBulletin:", removeBulletin),
                      method("turnOnScreenIfNecessaryForItem:", turnOnScreenIfNecessary)}};
}

NSMutableArray* listItems(Controller* controller) {
  return objc::readIvar<NSMutableArray>(controller, "_listItems");
}

NSObject* observerOf(Controller* controller) { return objc::readIvar<NSObject>(controller, "_observer"); }

void insertItem(Controller* controller, SBAwayListItem* item) {
  insertByDate(listItems(controller), item);
  showChange(controller);
}

SBLockScreenNotificationListView* listViewOf(Controller* controller) {
  return stateOf<ListControllerState>(controller).listView.get();
}

void setLockScreenView(Controller* controller, SBLockScreenView* view) {
  stateOf<ListControllerState>(controller).lockScreenView = view;
}

void unloadView(Controller* controller) {
  auto& state = stateOf<ListControllerState>(controller);
  setListVisible(controller, false);
  setListView(state.lockScreenView, nullptr);
  state.listView = {};
  if (NSFoundationVersionNumber >= kFirstFoundationKeepingRecords) return;
  listItems(controller)->removeAllObjects();
  state.itemsByBulletinID->removeAllObjects();
}

void wakeScreenFor(Controller* controller, SBAwayListItem* item) {
  NSObject* asked = bulletinOf(item);
  if (asked == nullptr) {
    asked = item;
  } else if (NSFoundationVersionNumber >= kFirstIos8Foundation) {
    asked = bannerFor(item);
  }
  controller->turnOnScreenIfNecessary(asked);
}

}  // namespace phone
