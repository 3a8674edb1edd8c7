// A screen that a lock screen plug-in lays over the lock screen.
#pragma once

#include "platform/foundation/ns_object.h"

class SBLockScreenPluginOverlayContext : public NSObject {
 public:
  SBLockScreenPluginOverlayContext() = delete;

  /// Takes over the result of alloc.
  SBLockScreenPluginOverlayContext* initWithPluginName(NSString* name, NSObject* pluginController,
                                                       NSObject* lockScreenViewController) {
    return objc::send<"initWithPluginName:pluginController:lockScreenViewController:",
                      SBLockScreenPluginOverlayContext*>(this, name, pluginController,
                                                         lockScreenViewController);
  }
};
