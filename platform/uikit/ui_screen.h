// A screen.
#pragma once

#include "platform/coregraphics/cg_geometry.h"
#include "platform/foundation/ns_object.h"

class UIScreen : public NSObject {
 public:
  UIScreen() = delete;

  static UIScreen* mainScreen() { return objc::sendToClass<UIScreen, "mainScreen", UIScreen*>(); }
  CGRect bounds() { return objc::send<"bounds", CGRect>(this); }
  /// Pixels per point.
  CGFloat scale() { return objc::send<"scale", CGFloat>(this); }
};
