// A view that shows an image.
#pragma once

#include "platform/uikit/ui_view.h"

class UIImage;

class UIImageView : public UIView {
 public:
  UIImageView() = delete;

  enum ContentMode : NSInteger { kScaleToFill = 0, kAspectFit = 1 };
  void setContentMode(NSInteger mode) { objc::send<"setContentMode:">(this, mode); }
  void setImage(UIImage* image) { objc::send<"setImage:">(this, image); }
};
