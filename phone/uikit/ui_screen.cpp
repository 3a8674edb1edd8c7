// The phone's one screen, as the host process was started with.
#include "phone/uikit/definitions.h"
#include "phone/uikit/uikit_state.h"

namespace phone {

namespace {

UIScreen* mainScreen(Class, SEL) {
  auto& screen = uiKit().mainScreen;
  if (!screen) screen = objc::make<UIScreen>();
  return screen.get();
}

CGFloat scale(UIScreen*, SEL) { return hostOptions().screenScale; }

CGRect bounds(UIScreen*, SEL) { return {{0, 0}, {hostOptions().screenWidth, hostOptions().screenHeight}}; }

}  // namespace

ClassDefinition uiScreen() {
  return {.name = "UIScreen",
          .superclass = "NSObject",
          .methods = {
              classMethod("mainScreen", mainScreen),
              method("scale", scale),
              method("bounds", bounds),
          }};
}

}  // namespace phone
