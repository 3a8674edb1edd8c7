#include "phone/app/lockscreen_switch.h"

#include <stdexcept>

#include "phone/app/hidden_event_list.h"
#include "phone/app/phone_files.h"
#include "phone/calendarui/calendar_process.h"
#include "phone/foundation/file_problems.h"
#include "phone/foundation/phone_root.h"
#include "phone/uikit/ui_alert_view.h"

namespace phone {

void showOnLockscreen(CalendarProcess& calendar, const std::string& eventIdentifier, bool shown) {
  calendar.setSwitch(calendar.openEvent(eventIdentifier), kLockscreenSwitch, shown);
  calendar.goBack();
  requireChoiceKept(eventIdentifier, shown);
}

void requireChoiceKept(const std::string& eventIdentifier, bool shown) {
  constexpr const char* kAdvice = "; check the folder's permissions and the space on the disk";
  try {
    if (HiddenEvents().contains(eventIdentifier) != shown) return;
  } catch (const std::runtime_error& error) {
    const std::string reason = fileProblems().empty() ? error.what() : fileProblems().back();
    throw std::runtime_error("the choice may not have been kept: " + reason + kAdvice);
  }
  const std::string reason =
      fileProblems().empty()
          ? pathOnThisMachine(contract::kHiddenEventsFile).string() + " could not be written"
          : fileProblems().back();
  throw std::runtime_error("the choice was not kept: " + reason + kAdvice);
}

void closeEditor(CalendarProcess& calendar, EKEventEditor* editor, EditAction action) {
  if (calendar.close(editor, action)) return;
  std::string reason = "the calendar refused";
  if (!shownAlerts().empty()) {
    const AlertState& alert = alertState(shownAlerts().back().get());
    reason += ": " + utf8(alert.title.get()) + " " + utf8(alert.message.get());
  }
  throw std::runtime_error(reason);
}

}  // namespace phone
