// The calendar's screens: event editor and event view, with the classes that a plug-in finds there.
#pragma once

namespace phone {

/// Registers the classes of the calendar screens. UIKit and EventKit must be registered before.
void registerCalendarUI();

}  // namespace phone
