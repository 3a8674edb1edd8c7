// The home-screen process, driven the way a phone drives it: locked, notified, woken, scrolled, swiped,
// tapped, and looked at.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "phone/foundation/host_options.h"
#include "phone/springboard/list_row.h"
#include "phone/springboard/springboard.h"
#include "phone/uikit/surface.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/objc/owned.h"

class BBBulletin;
class SBLockScreenNotificationListController;
class SBLockScreenPluginOverlayContext;
class SBLockScreenView;
class UIWindow;

namespace phone {

/// A notification of the phone's own.
struct OwnNotification {
  std::string title = {};
  std::string text = {};
  /// The application that sends it.
  std::string section = "com.apple.MobileSMS";
};

/// One per process: classes can be registered only once.
class HomeScreen {
 public:
  /// Starts Foundation, registers the classes, loads the plug-in, if any (an empty path: none), and makes the
  /// lock screen, dark and with nothing on it. Throws as startFoundation() and loadPlugin() do.
  static HomeScreen boot(const HostOptions& options, const std::filesystem::path& pluginLibrary = {});
  HomeScreen(const HomeScreen&) = delete;
  HomeScreen& operator=(const HomeScreen&) = delete;
  ~HomeScreen();

  /// Unlocks the phone, if it was locked, and locks it again: the list loads. The phone's own notifications
  /// are there again at once. Gives the time that the controller's loadView took, the plug-in's part
  /// included.
  std::chrono::nanoseconds load();

  /// Posts a notification of the phone's own, now; it stays until it is cleared. Turns the screen on.
  void postNotification(const OwnNotification& notification);
  /// Lists a pass: an item without a record.
  void offerPass(const std::string& title, const std::string& text);

  /// The list from top to bottom.
  std::vector<ListRow> rows();
  /// Scrolls so that that row is the topmost in sight, or as far as the list goes.
  void scrollTo(std::size_t row);
  /// Taps the row; what its record opens. Nothing when there is no such row.
  std::optional<Launch> tap(std::size_t row);
  /// Swipes the row away to clear it. False when the row is not there or refuses.
  bool swipeAway(std::size_t row);
  /// Clears every item that lets itself be cleared; how many did.
  std::size_t clearAll();

  bool screenIsOn() const;
  void turnScreenOff();
  /// Asks the phone to wake for the first row with that title. False when there is none.
  bool askToWakeFor(const std::string& title);

  /// Brings the Now Playing screen up over the lock screen, with its underlay, or takes it down.
  void showNowPlaying();
  void hideNowPlaying();
  /// Lets the main run loop run that long, in real time: delayed calls come due. Ends early when nothing is
  /// waiting.
  void runFor(std::chrono::duration<double> time);

  /// The requester names of all underlays, in the order of asking.
  std::vector<std::string> underlays();
  /// A picture that fills the screen behind everything. Throws std::runtime_error when the file has none.
  void setWallpaper(const std::filesystem::path& file);
  /// The lock screen as it looks now, in the screen's pixels.
  Surface picture();

  /// Borrowed, for tests and for measuring.
  SBLockScreenNotificationListController* listController() { return controller_.get(); }
  SBLockScreenView* lockScreenView() { return lockScreenView_.get(); }

 private:
  HomeScreen();
  SBAwayListItem* itemAt(std::size_t row);
  /// What the end of every turn of the run loop does.
  void layOut();
  void deliver(BBBulletin* bulletin);
  bool isListed(BBBulletin* bulletin);
  void clear(SBAwayListItem* item);

  AutoreleasePool pool_;
  objc::Owned<UIWindow> window_;
  objc::Owned<SBLockScreenView> lockScreenView_;
  objc::Owned<SBLockScreenNotificationListController> controller_;
  objc::Owned<SBLockScreenPluginOverlayContext> overlay_;
  /// Until they are cleared.
  std::vector<objc::Owned<BBBulletin>> ownRecords_;
  std::size_t ownRecordsPosted_ = 0;
};

}  // namespace phone
