// Everything that this framework keeps for the whole process, in one place.
#pragma once

#include <vector>

#include "phone/foundation/foundation.h"
#include "phone/uikit/ui_graphics.h"
#include "platform/objc/owned.h"
#include "platform/uikit/ui_alert_view.h"
#include "platform/uikit/ui_application.h"
#include "platform/uikit/ui_screen.h"
#include "platform/uikit/ui_window.h"

namespace phone {

struct UIKitState {
  CanvasStack canvases;
  objc::Owned<UIApplication> application;
  objc::Owned<UIScreen> mainScreen;
  std::vector<objc::Owned<UIWindow>> windows;
  std::vector<objc::Owned<UIAlertView>> shownAlerts;
};

UIKitState& uiKit();

}  // namespace phone
