// AddEventViewController: the screen on which a new event is made. Its editor stands two levels below it,
// which is how others tell an editor for a new event from one for an event that exists.
#pragma once

#include "phone/calendarui/ek_event_edit_view_controller.h"

namespace phone {

ClassDefinition addEventViewController();

/// The screen around the frame of an editor for a new event.
objc::Owned<UIViewController> makeAddEventViewController(EKEventEditViewController* frame);

}  // namespace phone
