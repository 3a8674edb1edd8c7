// Switches, and the finger that flips them.
#pragma once

#include "platform/uikit/ui_switch.h"

namespace phone {

/// Flips the switch as its user does: its targets are told. False, and nothing happens, when the switch is
/// none or disabled.
bool flipSwitch(UISwitch* toggle);

}  // namespace phone
