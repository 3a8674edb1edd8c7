// The switch that the plug-in adds to the calendar's screens, and closing the screens that it is on.
#pragma once

#include <string>

#include "phone/calendarui/edit_action.h"

class EKEventEditor;

namespace phone {

class CalendarProcess;

/// The text of the switch's row.
inline constexpr const char* kLockscreenSwitch = "Show on Lockscreen";

/// Opens the event's view, puts its switch in that position and leaves the view. Throws std::runtime_error
/// when there is no such event or switch, or the choice was not kept.
void showOnLockscreen(CalendarProcess& calendar, const std::string& eventIdentifier, bool shown);

/// Makes sure that the choice for the event stands in the plug-in's store, since the plug-in itself does not
/// tell a write that failed. Throws std::runtime_error naming the file.
void requireChoiceKept(const std::string& eventIdentifier, bool shown);

/// Presses Done, Cancel or Delete Event. Throws std::runtime_error with the phone's alert when it refuses.
void closeEditor(CalendarProcess& calendar, EKEventEditor* editor, EditAction action);

}  // namespace phone
