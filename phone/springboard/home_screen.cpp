#include "phone/springboard/home_screen.h"

#include "phone/bulletinboard/bulletinboard.h"
#include "phone/foundation/foundation.h"
#include "phone/objc/plugin.h"
#include "phone/springboard/list_items.h"
#include "phone/springboard/sb_away_card_list_item.h"
#include "phone/springboard/sb_lock_screen_notification_list_controller.h"
#include "phone/springboard/springboard.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_date.h"
#include "platform/springboard/sb_lock_screen_plugin_overlay_context.h"

namespace phone {

namespace {

NSString* text(const std::string& utf8) { return NSString::stringWithUTF8String(utf8.c_str()); }

objc::Owned<BBBulletin> ownRecord(const OwnNotification& notification, std::size_t number) {
  auto bulletin = objc::make<BBBulletin, "BBBulletin">();
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
    registerBulletinBoard();
    registerSpringBoard();
    if (!pluginLibrary.empty()) loadPlugin(pluginLibrary);
  }
  return {};
}

HomeScreen::HomeScreen()
    : controller_(
          objc::make<SBLockScreenNotificationListController, "SBLockScreenNotificationListController">()) {}

HomeScreen::~HomeScreen() = default;

std::chrono::nanoseconds HomeScreen::load() {
  const AutoreleasePool pool;
  unloadView(controller_.get());
  for (const auto& record : ownRecords_) {
    if (!isListed(record.get())) deliver(record.get());
  }
  turnScreenOff();
  const auto start = std::chrono::steady_clock::now();
  objc::send<"loadView">(controller_.get());
  return std::chrono::steady_clock::now() - start;
}

void HomeScreen::postNotification(const OwnNotification& notification) {
  const AutoreleasePool pool;
  ownRecords_.push_back(ownRecord(notification, ++ownRecordsPosted_));
  deliver(ownRecords_.back().get());
}

void HomeScreen::offerPass(const std::string& title, const std::string& message) {
  const AutoreleasePool pool;
  insertItem(controller_.get(), makeCardItem(text(title), text(message), NSDate::date()).get());
}

std::vector<ListRow> HomeScreen::rows() {
  const AutoreleasePool pool;
  std::vector<ListRow> rows;
  NSMutableArray* const items = listItems(controller_.get());
  for (NSUInteger i = 0; i < items->count(); ++i) {
    rows.push_back(listRowOf(static_cast<SBAwayListItem*>(items->objectAtIndex(i))));
  }
  return rows;
}

bool HomeScreen::screenIsOn() const { return springBoardState().screenIsOn; }

void HomeScreen::turnScreenOff() { springBoardState().screenIsOn = false; }

bool HomeScreen::askToWakeFor(const std::string& title) {
  const AutoreleasePool pool;
  SBAwayListItem* const item = itemWithTitle(title);
  if (item == nullptr) return false;
  wakeScreenFor(controller_.get(), item);
  return true;
}

void HomeScreen::showNowPlaying() {
  const AutoreleasePool pool;
  auto* const allocated =
      objc::sendToClass<"SBLockScreenPluginOverlayContext", "alloc", SBLockScreenPluginOverlayContext*>();
  overlay_ = objc::Owned<SBLockScreenPluginOverlayContext>::adopt(
      allocated->initWithPluginName("NowPlayingArtLockScreen"_ns, nullptr, nullptr));
}

void HomeScreen::runFor(std::chrono::duration<double> time) {
  const AutoreleasePool pool;
  id const runLoop = objc::sendToClass<"NSRunLoop", "currentRunLoop", id>();
  NSDate* const end = objc::sendToClass<"NSDate", "dateWithTimeIntervalSinceNow:", NSDate*>(time.count());
  objc::send<"runUntilDate:">(runLoop, end);
}

SBAwayListItem* HomeScreen::itemWithTitle(const std::string& title) {
  NSString* const wanted = text(title);
  NSMutableArray* const items = listItems(controller_.get());
  for (NSUInteger i = 0; i < items->count(); ++i) {
    auto* const item = static_cast<SBAwayListItem*>(items->objectAtIndex(i));
    if (wanted->isEqualToString(item->title())) return item;
  }
  return nullptr;
}

void HomeScreen::deliver(BBBulletin* bulletin) {
  NSObject* const observer = observerOf(controller_.get());
  if (NSFoundationVersionNumber < kFirstIos8Foundation) {
    controller_->addBulletin(observer, bulletin, 0);
  } else {
    controller_->addBulletin(observer, bulletin, 0, true, nullptr);
  }
}

bool HomeScreen::isListed(BBBulletin* bulletin) {
  NSMutableArray* const items = listItems(controller_.get());
  for (NSUInteger i = 0; i < items->count(); ++i) {
    if (bulletinOf(static_cast<SBAwayListItem*>(items->objectAtIndex(i))) == bulletin) return true;
  }
  return false;
}

}  // namespace phone
