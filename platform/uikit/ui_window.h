// A top-level view on a screen.
#pragma once

#include "platform/uikit/ui_view.h"

class UIScreen;

class UIWindow : public UIView {
 public:
  UIWindow() = delete;

  UIScreen* screen() { return objc::send<"screen", UIScreen*>(this); }
};
