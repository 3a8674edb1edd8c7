// Gestures: a tap on a view reaches the recognisers attached to it.
#pragma once

#include "platform/uikit/ui_view.h"

namespace phone {

/// Taps the view: its tap recognisers call their targets. False when it has none.
bool tapView(UIView* view);

}  // namespace phone
