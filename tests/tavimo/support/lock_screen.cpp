#include "tests/tavimo/support/lock_screen.h"

#include "phone/bulletinboard/bulletinboard.h"
#include "phone/foundation/foundation.h"
#include "phone/foundation/log_sink.h"
#include "phone/objc/plugin.h"
#include "phone/springboard/sb_lock_screen_notification_list_controller.h"
#include "phone/springboard/springboard.h"
#include "phone/uikit/uikit.h"
#include "tests/support/built.h"
#include "tests/tavimo/support/scripted_event_store.h"

namespace phone {

std::string propertyList(std::string_view rootElement) {
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\">" + std::string(rootElement) +
         "</plist>";
}

LockScreen::LockScreen(const LockScreenOptions& options) {
  startFoundation(
      {.root = root_.path(), .release = options.release, .now = options.now, .timeZone = options.timeZone});
  std::filesystem::create_directories(preferences(""));
  // Absent preferences of the Calendar app would leave nothing to search.
  write(kCalendarApp, "<dict/>");
  registerUIKit();
  registerBulletinBoard();
  registerSpringBoard();
  registerScriptedEventKit();
  if (options.beforePlugin) options.beforePlugin();
  loadPlugin(pluginLibrary());
  makeController();
}

std::filesystem::path LockScreen::preferences(std::string_view name) const {
  return root_.path() / "var/mobile/Library/Preferences" / name;
}

void LockScreen::writePreferences(std::string_view name, std::string_view bytes) const {
  writeBytes(preferences(name), bytes);
}

void LockScreen::makeController() { controller_ = objc::make<SBLockScreenNotificationListController>(); }

std::vector<ListRow> LockScreen::rows() {
  std::vector<ListRow> rows;
  NSMutableArray* const items = listItems(controller());
  for (NSUInteger i = 0; i < items->count(); ++i) {
    rows.push_back(listRowOf(static_cast<SBAwayListItem*>(items->objectAtIndex(i))));
  }
  return rows;
}

std::vector<std::string> LockScreen::titles() {
  std::vector<std::string> titles;
  for (const ListRow& row : rows()) titles.push_back(row.title);
  return titles;
}

std::vector<std::string> loggedWith(std::string_view part) {
  std::vector<std::string> found;
  for (const std::string& line : logLines()) {
    if (line.find(part) != std::string::npos) found.push_back(line);
  }
  return found;
}

}  // namespace phone
