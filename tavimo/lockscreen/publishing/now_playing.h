// A lock screen plug-in's screen comes up. Behind the Now Playing screen the items leave the list, when the
// user asked for that.
#pragma once

#include "platform/objc/displaced.h"
#include "platform/springboard/sb_lock_screen_plugin_overlay_context.h"

namespace tavimo {

inline constinit objc::Displaced<id(SBLockScreenPluginOverlayContext*, SEL, NSString*, NSObject*, NSObject*)>
    initWithPluginNameDisplaced;

id initWithPluginName(SBLockScreenPluginOverlayContext* self, SEL selector, NSString* pluginName,
                      NSObject* pluginController, NSObject* lockScreenViewController);

/// Removes the own items from the list of the controller that loaded last.
void removeCustomBulletins(SBLockScreenPluginOverlayContext* self, SEL selector);

}  // namespace tavimo
