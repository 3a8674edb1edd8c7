// Windows: the application knows those that were made visible.
#include <algorithm>

#include "phone/uikit/definitions.h"
#include "phone/uikit/uikit_state.h"
#include "platform/uikit/ui_view_controller.h"

namespace phone {

namespace {

struct WindowState {
  objc::Owned<UIViewController> rootViewController;
};

UIScreen* screen(UIWindow*, SEL) { return UIScreen::mainScreen(); }

void setRootViewController(UIWindow* self, SEL, UIViewController* controller) {
  auto& root = stateOf<WindowState>(self).rootViewController;
  if (root) root->view()->removeFromSuperview();
  root = objc::Owned<UIViewController>::retain(controller);
  auto* const view = controller->view();
  view->setFrame(self->bounds());
  self->addSubview(view);
}

void makeKeyAndVisible(UIWindow* self, SEL) {
  auto& windows = uiKit().windows;
  const auto known =
      std::find_if(windows.begin(), windows.end(), [self](const auto& each) { return each.get() == self; });
  if (known == windows.end()) windows.push_back(objc::Owned<UIWindow>::retain(self));
}

}  // namespace

ClassDefinition uiWindow() {
  return {.name = "UIWindow",
          .superclass = "UIView",
          .state = state<WindowState>(),
          .methods = {
              method("screen", screen),
              getter<&WindowState::rootViewController>("rootViewController"),
              method("setRootViewController:", setRootViewController),
              method("makeKeyAndVisible", makeKeyAndVisible),
          }};
}

}  // namespace phone
