// A rectangle on the screen, with views inside it.
#pragma once

#include "platform/coregraphics/cg_geometry.h"
#include "platform/foundation/ns_object.h"

class NSArray;

class UIView : public NSObject {
 public:
  UIView() = delete;

  /// Nil at the top of the hierarchy.
  UIView* superview() { return objc::send<"superview", UIView*>(this); }
  NSArray* subviews() { return objc::send<"subviews", NSArray*>(this); }
  CGRect frame() { return objc::send<"frame", CGRect>(this); }
  CGRect bounds() { return objc::send<"bounds", CGRect>(this); }
  void setFrame(CGRect frame) { objc::send<"setFrame:">(this, frame); }
  void addSubview(UIView* view) { objc::send<"addSubview:">(this, view); }
  void setAutoresizingMask(NSUInteger mask) { objc::send<"setAutoresizingMask:">(this, mask); }
  void setTag(NSInteger tag) { objc::send<"setTag:">(this, tag); }
  CGSize sizeThatFits(CGSize size) { return objc::send<"sizeThatFits:", CGSize>(this, size); }
};
