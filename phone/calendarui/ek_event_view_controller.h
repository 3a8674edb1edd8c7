// EKEventViewController: the screen that shows one event. It builds its list of parts when it first appears,
// and again after its event was edited; when it merely comes back, it keeps the list that it has.
#pragma once

#include "phone/calendarui/item_table.h"
#include "phone/objc/class_definition.h"
#include "platform/calendarui/ek_event_view_controller.h"

class EKEventStore;

namespace phone {

ClassDefinition ekEventViewController();

objc::Owned<EKEventViewController> makeEventViewController(EKEvent* event, EKEventStore* store);

/// The view's rows as its table holds them; empty until the view first appears.
const ItemTable& tableOf(EKEventViewController* view);

/// False once the shown event was deleted from an editor that this view opened.
bool hasEvent(EKEventViewController* view);

}  // namespace phone
