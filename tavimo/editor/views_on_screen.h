// The event views that are on screen, and which of them the user flips the switch in: the process has one
// detail item, while its host may show several views, keep them below others, and build their lists at any
// time.
#pragma once

#include "platform/calendarui/ek_event_view_controller.h"

namespace tavimo {

/// The view is on screen, above all others, until it disappears. It is not retained: a view that is freed
/// without disappearing is no longer on screen.
void noteAppeared(EKEventViewController* view);
void noteDisappeared(EKEventViewController* view);

/// Whether the view's list, as it was built last, has the detail item.
void noteListsItem(EKEventViewController* view, bool listsItem);

/// Of the views on screen whose list has the detail item, the one that appeared last (borrowed); nil when
/// there is no such view.
EKEventViewController* viewInUse();

}  // namespace tavimo
