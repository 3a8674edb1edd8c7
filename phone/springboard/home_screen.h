// The home-screen process, driven the way a phone drives it: locked, notified, woken, swiped, tapped.
#pragma once

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "phone/foundation/host_options.h"
#include "phone/springboard/list_row.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/objc/owned.h"

class BBBulletin;
class SBAwayListItem;
class SBLockScreenNotificationListController;
class SBLockScreenPluginOverlayContext;

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

  bool screenIsOn() const;
  void turnScreenOff();
  /// Asks the phone to wake for the first row with that title. False when there is none.
  bool askToWakeFor(const std::string& title);

  /// Brings the Now Playing screen up over the lock screen.
  void showNowPlaying();
  /// Lets the main run loop run that long, in real time: delayed calls come due.
  void runFor(std::chrono::duration<double> time);

  /// Borrowed, for tests and for measuring.
  SBLockScreenNotificationListController* listController() { return controller_.get(); }

 private:
  HomeScreen();
  SBAwayListItem* itemWithTitle(const std::string& title);
  void deliver(BBBulletin* bulletin);
  bool isListed(BBBulletin* bulletin);

  AutoreleasePool pool_;
  objc::Owned<SBLockScreenNotificationListController> controller_;
  objc::Owned<SBLockScreenPluginOverlayContext> overlay_;
  std::vector<objc::Owned<BBBulletin>> ownRecords_;
  std::size_t ownRecordsPosted_ = 0;
};

}  // namespace phone
