// Manages one screen or a part of one.
#pragma once

#include "platform/foundation/ns_object.h"

class UIViewController : public NSObject {
 public:
  UIViewController() = delete;

  /// Nil for a controller that stands alone.
  UIViewController* parentViewController() {
    return objc::send<"parentViewController", UIViewController*>(this);
  }
};
