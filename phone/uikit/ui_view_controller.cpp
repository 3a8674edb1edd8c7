// View controllers: they make their view when it is first asked for.
#include "platform/uikit/ui_view_controller.h"

#include <vector>

#include "phone/uikit/definitions.h"
#include "phone/uikit/ui_view.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/uikit/ui_screen.h"

namespace phone {

namespace {

struct ControllerState {
  objc::Owned<UIView> view;
  objc::Owned<NSString> title;
  std::vector<objc::Owned<UIViewController>> children;
  /// Not owned: the parent owns its children.
  UIViewController* parent = nullptr;

  ~ControllerState() {
    for (const auto& child : children) stateOf<ControllerState>(child.get()).parent = nullptr;
  }
};

void loadView(UIViewController* self, SEL) {
  const auto bounds = UIScreen::mainScreen()->bounds();
  self->setView(makeView<UIView>(bounds).autorelease());
}

UIView* view(UIViewController* self, SEL) {
  const auto& view = stateOf<ControllerState>(self).view;
  if (!view) {
    self->loadView();
    self->viewDidLoad();
  }
  return view.get();
}

bool isViewLoaded(UIViewController* self, SEL) {
  return static_cast<bool>(stateOf<ControllerState>(self).view);
}

UIViewController* parentViewController(UIViewController* self, SEL) {
  return stateOf<ControllerState>(self).parent;
}

NSArray* childViewControllers(UIViewController* self, SEL) {
  NSMutableArray* const all = NSMutableArray::array();
  for (const auto& child : stateOf<ControllerState>(self).children) all->addObject(child.get());
  return all;
}

void removeFromParentViewController(UIViewController* self, SEL) {
  UIViewController* const parent = std::exchange(stateOf<ControllerState>(self).parent, nullptr);
  if (parent == nullptr) return;
  std::erase_if(stateOf<ControllerState>(parent).children,
                [self](const auto& each) { return each.get() == self; });
}

void addChildViewController(UIViewController* self, SEL, UIViewController* child) {
  const auto kept = objc::Owned<UIViewController>::retain(child);
  child->removeFromParentViewController();
  stateOf<ControllerState>(self).children.push_back(kept);
  stateOf<ControllerState>(child).parent = self;
}

void ignoreLoad(UIViewController*, SEL) {}
void ignoreAppearance(UIViewController*, SEL, bool) {}

}  // namespace

ClassDefinition uiViewController() {
  return {.name = "UIViewController",
          .superclass = "UIResponder",
          .state = state<ControllerState>(),
          .methods = {
              method("view", view),
              setter<&ControllerState::view>("setView:"),
              method("isViewLoaded", isViewLoaded),
              method("loadView", loadView),
              method("viewDidLoad", ignoreLoad),
              method("viewWillAppear:", ignoreAppearance),
              method("viewDidAppear:", ignoreAppearance),
              method("viewWillDisappear:", ignoreAppearance),
              method("viewDidDisappear:", ignoreAppearance),
              property<&ControllerState::title, "title">(),
              method("parentViewController", parentViewController),
              method("childViewControllers", childViewControllers),
              method("addChildViewController:", addChildViewController),
              method("removeFromParentViewController", removeFromParentViewController),
          }};
}

}  // namespace phone
