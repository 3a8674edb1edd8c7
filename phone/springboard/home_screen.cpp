#include "phone/springboard/home_screen.h"

#include <algorithm>
#include <stdexcept>

#include "phone/bulletinboard/bulletinboard.h"
#include "phone/eventkit/eventkit.h"
#include "phone/foundation/foundation.h"
#include "phone/objc/plugin.h"
#include "phone/springboard/list_order.h"
#include "phone/springboard/sb_away_card_list_item.h"
#include "phone/springboard/sb_lock_screen_notification_list_controller.h"
#include "phone/springboard/sb_lock_screen_notification_list_view.h"
#include "phone/springboard/sb_lock_screen_view.h"
#include "phone/uikit/image_file.h"
#include "phone/uikit/ui_application.h"
#include "phone/uikit/ui_table_view.h"
#include "phone/uikit/uikit.h"
#include "phone/uikit/view_drawing.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_date.h"
#include "platform/springboard/sb_lock_screen_plugin_overlay_context.h"
#include "platform/uikit/ui_window.h"

namespace phone {

namespace {

NSString* text(const std::string& utf8) { return NSString::stringWithUTF8String(utf8.c_str()); }

// Each plug-in screen asks under a name of its own.
NSString* nowPlayingRequester() { return "OverlayContext-NowPlayingArtLockScreen"_ns; }

CGRect screenBounds() { return {{0, 0}, {hostOptions().screenWidth, hostOptions().screenHeight}}; }

objc::Owned<BBBulletin> ownRecord(const OwnNotification& notification, std::size_t number) {
  auto bulletin = objc::make<BBBulletin>();
  NSDate* const now = NSDate::date();
  bulletin->setBulletinID(text(notification.section + " " + std::to_string(number)));
  bulletin->setSection(text(notification.section));
  bulletin->setTitle(text(notification.title));
  bulletin->setMessage(text(notification.text));
  bulletin->setShowsMessagePreview(true);
  bulletin->setDate(now);
  bulletin->setPublicationDate(now);
  bulletin->setLastInterruptDate(now);
  return bulletin;
}

}  // namespace

HomeScreen HomeScreen::boot(const HostOptions& options, const std::filesystem::path& pluginLibrary) {
  startFoundation(options);
  {
    // Gone before the home screen makes its own pool: pools end in the reverse order of their making.
    const AutoreleasePool pool;
    registerUIKit();
    registerBulletinBoard();
    registerEventKit();
    registerSpringBoard();
    if (!pluginLibrary.empty()) loadPlugin(pluginLibrary);
    startApplication("SpringBoard");
  }
  return {};
}

HomeScreen::HomeScreen()
    : window_(makeView<UIWindow>(screenBounds())),
      lockScreenView_(makeView<SBLockScreenView>(screenBounds())),
      controller_(objc::make<SBLockScreenNotificationListController>()) {
  window_->addSubview(lockScreenView_.get());
  objc::send<"makeKeyAndVisible">(window_.get());
  setLockScreenView(controller_.get(), lockScreenView_.get());
}

HomeScreen::~HomeScreen() { setLockScreenView(controller_.get(), nullptr); }

std::chrono::nanoseconds HomeScreen::load() {
  const AutoreleasePool pool;
  unloadView(controller_.get());
  for (const auto& record : ownRecords_) {
    if (!isListed(record.get())) deliver(record.get());
  }
  turnScreenOff();
  const auto start = std::chrono::steady_clock::now();
  controller_->loadView();
  const auto time = std::chrono::steady_clock::now() - start;
  layOut();
  return time;
}

void HomeScreen::postNotification(const OwnNotification& notification) {
  const AutoreleasePool pool;
  ownRecords_.push_back(ownRecord(notification, ++ownRecordsPosted_));
  deliver(ownRecords_.back().get());
  layOut();
}

void HomeScreen::offerPass(const std::string& title, const std::string& message) {
  const AutoreleasePool pool;
  insertItem(controller_.get(), makeCardItem(text(title), text(message), NSDate::date()).get());
  layOut();
}

std::vector<ListRow> HomeScreen::rows() {
  const AutoreleasePool pool;
  layOut();
  SBLockScreenNotificationListView* const listView = listViewOf(controller_.get());
  const auto shown = listView == nullptr ? std::vector<ShownRow>() : shownRows(listView);
  std::vector<ListRow> rows;
  for (std::size_t i = 0; SBAwayListItem* const item = itemAt(i); ++i) {
    ListRow& row = rows.emplace_back(listRowOf(item));
    if (i >= shown.size()) continue;
    const CGPoint corner = listView->frame().origin;
    const auto& [place, size] = shown[i].frame;
    row.frame = CGRect{{corner.x + place.x, corner.y + place.y}, size};
    if (shown[i].cell != nullptr) row.cell = layoutOf(shown[i].cell);
  }
  return rows;
}

void HomeScreen::scrollTo(std::size_t row) {
  const AutoreleasePool pool;
  auto* const listView = listViewOf(controller_.get());
  if (listView == nullptr) return;
  scrollToRow(listView, row);
  layOut();
}

std::optional<Launch> HomeScreen::tap(std::size_t row) {
  const AutoreleasePool pool;
  auto* const listView = listViewOf(controller_.get());
  if (listView == nullptr || !tapRow(tableOf(listView), 0, static_cast<NSInteger>(row))) return std::nullopt;
  return springBoardState().launch;
}

bool HomeScreen::swipeAway(std::size_t row) {
  const AutoreleasePool pool;
  auto* const listView = listViewOf(controller_.get());
  SBAwayListItem* const item = itemAt(row);
  if (listView == nullptr || item == nullptr) return false;
  NSIndexPath* const path = NSIndexPath::indexPathForRow(static_cast<NSInteger>(row), 0);
  if (!objc::send<"tableView:canEditRowAtIndexPath:", bool>(listView, tableOf(listView), path)) return false;
  clear(item);
  layOut();
  return true;
}

std::size_t HomeScreen::clearAll() {
  const AutoreleasePool pool;
  std::vector<SBAwayListItem*> clearable;
  for (std::size_t i = 0; SBAwayListItem* const item = itemAt(i); ++i) {
    if (item->canBeClearedByNotificationCenter()) clearable.push_back(item);
  }
  for (SBAwayListItem* const item : clearable) clear(item);
  layOut();
  return clearable.size();
}

bool HomeScreen::screenIsOn() const { return springBoardState().screenIsOn; }

void HomeScreen::turnScreenOff() { springBoardState().screenIsOn = false; }

bool HomeScreen::askToWakeFor(const std::string& title) {
  const AutoreleasePool pool;
  NSString* const wanted = text(title);
  for (std::size_t i = 0; SBAwayListItem* const item = itemAt(i); ++i) {
    if (!wanted->isEqualToString(item->title())) continue;
    wakeScreenFor(controller_.get(), item);
    return true;
  }
  return false;
}

void HomeScreen::showNowPlaying() {
  const AutoreleasePool pool;
  auto* const allocated =
      objc::sendToClass<SBLockScreenPluginOverlayContext, "alloc", SBLockScreenPluginOverlayContext*>();
  overlay_ = objc::Owned<SBLockScreenPluginOverlayContext>::adopt(
      allocated->initWithPluginName("NowPlayingArtLockScreen"_ns, nullptr, nullptr));
  lockScreenView_->addLockContentUnderlay(nowPlayingRequester());
  setNowPlaying(lockScreenView_.get(), true);
  layOut();
}

void HomeScreen::hideNowPlaying() {
  const AutoreleasePool pool;
  overlay_ = {};
  lockScreenView_->removeLockContentUnderlay(nowPlayingRequester());
  setNowPlaying(lockScreenView_.get(), false);
  layOut();
}

void HomeScreen::runFor(std::chrono::duration<double> time) {
  const AutoreleasePool pool;
  id const runLoop = objc::sendToClass<"NSRunLoop", "currentRunLoop", id>();
  NSDate* const end = objc::sendToClass<NSDate, "dateWithTimeIntervalSinceNow:", NSDate*>(time.count());
  objc::send<"runUntilDate:">(runLoop, end);
  layOut();
}

std::vector<std::string> HomeScreen::underlays() { return underlayRequesters(lockScreenView_.get()); }

void HomeScreen::setWallpaper(const std::filesystem::path& file) {
  Surface picture = loadImageFile(file);
  if (picture == nullptr) throw std::runtime_error(file.string() + ": no PNG or JPEG picture can be read");
  phone::setWallpaper(lockScreenView_.get(), std::move(picture));
}

Surface HomeScreen::picture() {
  const AutoreleasePool pool;
  setShownTime(lockScreenView_.get(), NSDate::date());
  return pictureOfView(lockScreenView_.get(), hostOptions().screenScale);
}

SBAwayListItem* HomeScreen::itemAt(std::size_t row) {
  NSMutableArray* const items = listItems(controller_.get());
  return row < items->count() ? static_cast<SBAwayListItem*>(items->objectAtIndex(row)) : nullptr;
}

void HomeScreen::layOut() { lockScreenView_->layoutIfNeeded(); }

void HomeScreen::deliver(BBBulletin* bulletin) {
  NSObject* const observer = observerOf(controller_.get());
  if (NSFoundationVersionNumber < kFirstIos8Foundation) {
    controller_->addBulletin(observer, bulletin, 0);
  } else {
    controller_->addBulletin(observer, bulletin, 0, true, nullptr);
  }
}

bool HomeScreen::isListed(BBBulletin* bulletin) {
  for (std::size_t i = 0; SBAwayListItem* const item = itemAt(i); ++i) {
    if (bulletinOf(item) == bulletin) return true;
  }
  return false;
}

void HomeScreen::clear(SBAwayListItem* item) {
  const auto bulletin = objc::Owned<BBBulletin>::retain(bulletinOf(item));
  if (!bulletin) return;
  controller_->removeBulletin(observerOf(controller_.get()), bulletin.get());
  std::erase_if(ownRecords_, [&bulletin](const auto& record) { return record.get() == bulletin.get(); });
}

}  // namespace phone
