// A screen that a lock screen plug-in lays over the lock screen.
#pragma once

#include "platform/foundation/ns_object.h"

class SBLockScreenPluginOverlayContext : public NSObject {
 public:
  SBLockScreenPluginOverlayContext() = delete;
};
