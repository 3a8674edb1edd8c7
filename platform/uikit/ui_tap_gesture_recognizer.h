// Calls its target when its view is tapped.
#pragma once

#include "platform/foundation/ns_object.h"

class UITapGestureRecognizer : public NSObject {
 public:
  UITapGestureRecognizer() = delete;
};
