// A font at a size in points.
#pragma once

#include "platform/coregraphics/cg_geometry.h"
#include "platform/foundation/ns_object.h"

class UIFont : public NSObject {
 public:
  UIFont() = delete;

  static UIFont* systemFontOfSize(CGFloat points) {
    return objc::sendToClass<UIFont, "systemFontOfSize:", UIFont*>(points);
  }
  /// The same font at another size.
  UIFont* fontWithSize(CGFloat points) { return objc::send<"fontWithSize:", UIFont*>(this, points); }
  CGFloat pointSize() { return objc::send<"pointSize", CGFloat>(this); }
};
