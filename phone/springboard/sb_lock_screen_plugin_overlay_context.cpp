// SBLockScreenPluginOverlayContext, one screen that a lock screen plug-in lays over the lock screen.
#include "platform/springboard/sb_lock_screen_plugin_overlay_context.h"

#include "phone/springboard/definitions.h"
#include "platform/foundation/ns_string.h"

namespace phone {

namespace {

struct OverlayState {
  objc::Owned<NSString> pluginName;
  objc::Owned<NSObject> pluginController;
  NSObject* lockScreenViewController = nullptr;  // Borrowed: it owns the context.
};

SBLockScreenPluginOverlayContext* initWithPluginName(SBLockScreenPluginOverlayContext* self, SEL,
                                                     NSString* name, NSObject* pluginController,
                                                     NSObject* lockScreenViewController) {
  stateOf<OverlayState>(self) = {.pluginName = objc::Owned<NSString>::retain(name),
                                 .pluginController = objc::Owned<NSObject>::retain(pluginController),
                                 .lockScreenViewController = lockScreenViewController};
  return self;
}

}  // namespace

ClassDefinition sbLockScreenPluginOverlayContext() {
  return {
      .name = "SBLockScreenPluginOverlayContext",
      .superclass = "NSObject",
      .state = state<OverlayState>(),
      .methods = {method("initWithPluginName:pluginController:lockScreenViewController:", initWithPluginName),
                  getter<&OverlayState::pluginName>("pluginName"),
                  getter<&OverlayState::pluginController>("pluginController"),
                  getter<&OverlayState::lockScreenViewController>("lockScreenViewController")}};
}

}  // namespace phone
