#include "phone/app/lockscreen_switch.h"

#include <stdexcept>

#include "phone/app/hidden_events.h"
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
  if (HiddenEvents().contains(eventIdentifier) != shown) return;
  const std::string reason = fileProblems().empty()
                                 ? pathOnThisMachine(kHiddenEventsFile).string() + " could not be written"
                                 : fileProblems().back();
  throw std::runtime_error("the choice was not kept: " + reason +
                           "; check the folder's permissions and the space on the disk");
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
