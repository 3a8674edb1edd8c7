// Calls its target when its view is tapped.
#pragma once

#include "platform/foundation/ns_object.h"

class UITapGestureRecognizer : public NSObject {
 public:
  UITapGestureRecognizer() = delete;

  /// Takes over the result of alloc.
  UITapGestureRecognizer* initWithTarget(NSObject* target, SEL action) {
    return objc::send<"initWithTarget:action:", UITapGestureRecognizer*>(this, target, action);
  }
};
