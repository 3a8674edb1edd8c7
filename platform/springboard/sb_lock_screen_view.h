// The lock screen.
#pragma once

#include "platform/uikit/ui_view.h"

class SBLockScreenView : public UIView {
 public:
  SBLockScreenView() = delete;

  void addLockContentUnderlay(NSString* requester) {
    objc::send<"_addLockContentUnderlayWithRequester:">(this, requester);
  }
  void removeLockContentUnderlay(NSString* requester) {
    objc::send<"_removeLockContentUnderlayWithRequester:">(this, requester);
  }
};
