// Hosts that have what the plug-in replaces and nothing else: no instance variables, no state, no views.
// Their methods are recorded (see message_recorder.h).
#pragma once

#include <string_view>

namespace phone {

/// Registers the lock screen classes, SpringBoard among them, except the one of that name.
void registerBareHomeScreen(std::string_view missingClass = {});

/// Registers the classes of the event editor and the event view, except the one of that name.
void registerBareCalendarScreens(std::string_view missingClass = {});

}  // namespace phone
