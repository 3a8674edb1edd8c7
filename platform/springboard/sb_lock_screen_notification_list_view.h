// The view that holds the list's table.
#pragma once

#include "platform/uikit/ui_view.h"

class SBLockScreenNotificationListView : public UIView {
 public:
  SBLockScreenNotificationListView() = delete;
};
