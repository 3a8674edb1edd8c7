// The event view.
#pragma once

#include "platform/uikit/ui_view_controller.h"

class EKEvent;

class EKEventViewController : public UIViewController {
 public:
  EKEventViewController() = delete;

  EKEvent* event() { return objc::send<"event", EKEvent*>(this); }
};
