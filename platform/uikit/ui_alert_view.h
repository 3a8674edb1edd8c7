// A message box.
#pragma once

#include "platform/foundation/ns_object.h"

class UIAlertView : public NSObject {
 public:
  UIAlertView() = delete;

  void show() { objc::send<"show">(this); }
};
