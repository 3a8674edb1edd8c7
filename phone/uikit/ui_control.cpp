#include "phone/uikit/ui_control.h"

#include "phone/uikit/definitions.h"

namespace phone {

namespace {

void addTarget(UIView* self, SEL, NSObject* target, SEL action, NSUInteger events) {
  if (target == nullptr || action == nullptr) return;
  stateOf<ControlState>(self).targets.push_back({target, action, events});
}

void removeTarget(UIView* self, SEL, NSObject* target, SEL action, NSUInteger events) {
  std::erase_if(stateOf<ControlState>(self).targets, [&](const TargetAction& each) {
    return (target == nullptr || each.target == target) && (action == nullptr || each.action == action) &&
           (each.events & events) != 0;
  });
}

void sendActionsForControlEvents(UIView* self, SEL, NSUInteger events) {
  // A target may change the list.
  for (const TargetAction& each : std::vector(stateOf<ControlState>(self).targets)) {
    if ((each.events & events) != 0) sendAction(each, self);
  }
}

}  // namespace

ClassDefinition uiControl() {
  return {.name = "UIControl",
          .superclass = "UIView",
          .state = state<ControlState>(),
          .methods = {
              method("addTarget:action:forControlEvents:", addTarget),
              method("removeTarget:action:forControlEvents:", removeTarget),
              method("sendActionsForControlEvents:", sendActionsForControlEvents),
              property<&ControlState::enabled, "isEnabled", "setEnabled:">(),
          }};
}

}  // namespace phone
