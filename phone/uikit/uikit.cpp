#include "phone/uikit/uikit.h"

#include "phone/uikit/definitions.h"
#include "phone/uikit/foundation_additions.h"
#include "phone/uikit/uikit_state.h"

namespace phone {

UIKitState& uiKit() {
  // Never destroyed: the objects in it would be released after the runtime's own end.
  static auto& state = *new UIKitState;
  return state;
}

void registerUIKit() {
  registerClasses({uiColor, uiFont, uiImage, uiGestureRecognizer, uiTapGestureRecognizer, uiResponder, uiView,
                   uiWindow, uiScreen, uiApplication, uiLabel, uiImageView, uiControl, uiSwitch, uiScrollView,
                   uiTableViewCell, uiTableView, uiAlertView, uiViewController});
  addFoundationMethods();
}

}  // namespace phone
