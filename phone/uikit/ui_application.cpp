#include "phone/uikit/ui_application.h"

#include "phone/uikit/definitions.h"
#include "phone/uikit/uikit_state.h"
#include "platform/foundation/ns_mutable_array.h"

namespace phone {

namespace {

UIApplication* sharedApplication(Class, SEL) { return uiKit().application.get(); }

NSArray* windows(UIApplication*, SEL) {
  NSMutableArray* const all = NSMutableArray::array();
  for (const auto& window : uiKit().windows) all->addObject(window.get());
  return all;
}

}  // namespace

void startApplication(const char* className) {
  auto* const application = objc::send<"alloc", id>(static_cast<void*>(objc_getClass(className)));
  uiKit().application = objc::Owned<UIApplication>::adopt(objc::send<"init", UIApplication*>(application));
}

ClassDefinition uiApplication() {
  return {.name = "UIApplication",
          .superclass = "UIResponder",
          .methods = {
              classMethod("sharedApplication", sharedApplication),
              method("windows", windows),
          }};
}

}  // namespace phone
