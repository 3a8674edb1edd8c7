// An on/off switch.
#pragma once

#include "platform/uikit/ui_view.h"

class UISwitch : public UIView {
 public:
  UISwitch() = delete;

  enum ControlEvent : NSUInteger { kValueChanged = 0x1000 };

  bool isOn() { return objc::send<"isOn", bool>(this); }
  void setOn(bool on) { objc::send<"setOn:">(this, on); }
  void addTarget(NSObject* target, SEL action, NSUInteger controlEvents) {
    objc::send<"addTarget:action:forControlEvents:">(this, target, action, controlEvents);
  }
};
