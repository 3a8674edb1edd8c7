#include "phone/uikit/gesture_recognizer.h"

#include "phone/uikit/definitions.h"
#include "phone/uikit/target_action.h"
#include "phone/uikit/ui_view.h"
#include "platform/uikit/ui_tap_gesture_recognizer.h"

namespace phone {

namespace {

struct RecognizerState {
  TargetAction targetAction;
  /// Not owned: the view owns its recognisers.
  UIView* view = nullptr;
};

NSObject* initWithTarget(NSObject* self, SEL, NSObject* target, SEL action) {
  stateOf<RecognizerState>(self).targetAction = {target, action, 0};
  return self;
}

UIView* view(NSObject* self, SEL) { return stateOf<RecognizerState>(self).view; }
void setView(NSObject* self, SEL, UIView* view) { stateOf<RecognizerState>(self).view = view; }

}  // namespace

bool tapView(UIView* view) {
  bool wasRecognized = false;
  for (const auto& recognizer : std::vector(stateOf<ViewState>(view).gestureRecognizers)) {
    if (!recognizer->isKindOfClass(objc::classOf<UITapGestureRecognizer>())) continue;
    sendAction(stateOf<RecognizerState>(recognizer.get()).targetAction, recognizer.get());
    wasRecognized = true;
  }
  return wasRecognized;
}

ClassDefinition uiGestureRecognizer() {
  return {.name = "UIGestureRecognizer",
          .superclass = "NSObject",
          .state = state<RecognizerState>(),
          .methods = {
              method("initWithTarget:action:", initWithTarget),
              method("view", view),
              method("setView:", setView),
          }};
}

ClassDefinition uiTapGestureRecognizer() {
  return {.name = "UITapGestureRecognizer", .superclass = "UIGestureRecognizer"};
}

}  // namespace phone
