#include "phone/uikit/target_action.h"

#include <algorithm>
#include <string_view>

namespace phone {

void sendAction(const TargetAction& targetAction, NSObject* sender) {
  const auto& [target, action, events] = targetAction;
  const std::string_view name = sel_getName(action);
  switch (std::count(name.begin(), name.end(), ':')) {
    case 0:
      return objc::send(target, action);
    case 1:
      return objc::send(target, action, sender);
    default:
      // The second argument is the touch, which nothing here looks at.
      return objc::send(target, action, sender, static_cast<NSObject*>(nullptr));
  }
}

}  // namespace phone
