// A home screen with the plug-in loaded, a phone root of its own and a scripted calendar store: what most
// tests of the plug-in start from. Class names and Foundation start once per process, so one per test.
#pragma once

#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "phone/springboard/list_row.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/objc/owned.h"
#include "platform/springboard/sb_lock_screen_notification_list_controller.h"
#include "tests/foundation/temporary_folder.h"
#include "tests/tavimo/support/objects.h"
#include "tests/tavimo/support/plugin_values.h"

namespace phone {

/// The files that the home screen reads, by the last part of their names.
inline constexpr const char* kSettings = "org.quenmark.tavimoprefs.plist";
inline constexpr const char* kOrdering = "org.quenmark.tavimo.sorting.plist";
inline constexpr const char* kSelection = "org.quenmark.tavimo.calendars.plist";
inline constexpr const char* kHiddenEvents = "org.quenmark.tavimo.events.plist";
inline constexpr const char* kCalendarApp = "com.apple.mobilecal.plist";

/// Friday 7 March 2014, 10:00 UTC.
inline constexpr double kMorning = utc(2014, 3, 7, 10);

struct LockScreenOptions {
  std::string release = "8.4";
  double now = kMorning;
  std::string timeZone = "UTC";
  /// Runs when all classes are there and the plug-in is not.
  std::function<void()> beforePlugin = {};
};

/// An XML property list around that root element.
std::string propertyList(std::string_view rootElement);

class LockScreen {
 public:
  explicit LockScreen(const LockScreenOptions& options = {});

  /// Where the phone's file of that name lies.
  std::filesystem::path fileAt(std::string_view phonePath) const {
    return root_.path() / phonePath.substr(1);
  }
  std::filesystem::path preferences(std::string_view name) const;
  /// Puts those bytes into the preference file of that name.
  void writePreferences(std::string_view name, std::string_view bytes) const;
  /// Writes a property list: write(kOrdering, "<array/>").
  void write(std::string_view name, std::string_view rootElement) const {
    writePreferences(name, propertyList(rootElement));
  }
  /// Writes the settings file: settings("<key>enabled</key><false/>").
  void settings(std::string_view entries) const {
    write(kSettings, "<dict>" + std::string(entries) + "</dict>");
  }

  /// The list loads its view.
  void load() { objc::send<"loadView">(controller()); }
  SBLockScreenNotificationListController* controller() { return controller_.get(); }
  /// Replaces the controller by a new one, which has an empty list.
  void makeController();
  /// The list from top to bottom.
  std::vector<ListRow> rows();
  /// The titles of the rows.
  std::vector<std::string> titles();

 private:
  TemporaryFolder root_;
  AutoreleasePool pool_;
  objc::Owned<SBLockScreenNotificationListController> controller_;
};

/// The logged lines that hold that text.
std::vector<std::string> loggedWith(std::string_view part);

}  // namespace phone
