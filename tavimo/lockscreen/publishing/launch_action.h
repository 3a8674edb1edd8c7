// What a tap on an own item opens, as the user chose.
#pragma once

#include "platform/bulletinboard/bb_action.h"
#include "platform/eventkit/ek_event.h"

namespace tavimo {

/// The action for the event by `swipeAction` (borrowed); nil when a tap is to do nothing.
BBAction* launchAction(EKEvent* event);

}  // namespace tavimo
