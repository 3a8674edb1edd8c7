// A view that shows a part of a larger content. Places and sizes are in points.
#pragma once

#include "platform/uikit/ui_view.h"

class UIScrollView : public UIView {
 public:
  UIScrollView() = delete;

  void setContentSize(CGSize size) { objc::send<"setContentSize:">(this, size); }
  void setContentOffset(CGPoint offset) { objc::send<"setContentOffset:">(this, offset); }
};
