// Controls: views that tell their targets what the user does.
#pragma once

#include <vector>

#include "phone/uikit/target_action.h"
#include "phone/uikit/ui_view.h"

namespace phone {

struct ControlState {
  std::vector<TargetAction> targets;
  bool enabled = true;
};

}  // namespace phone
