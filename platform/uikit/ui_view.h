// A rectangle on the screen, with views inside it.
#pragma once

#include "platform/coregraphics/cg_geometry.h"
#include "platform/foundation/ns_object.h"

class NSArray;
class UIColor;

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
  void removeFromSuperview() { objc::send<"removeFromSuperview">(this); }
  /// The host's word to a view that it moved to another superview, or to none.
  void didMoveToSuperview() { objc::send<"didMoveToSuperview">(this); }

  /// What an autoresizing mask lets grow and shrink with the superview.
  enum Autoresizing : NSUInteger {
    kFlexibleLeftMargin = 1,
    kFlexibleWidth = 2,
    kFlexibleRightMargin = 4,
    kFlexibleTopMargin = 8,
    kFlexibleHeight = 16,
    kFlexibleBottomMargin = 32,
  };
  void setAutoresizingMask(NSUInteger mask) { objc::send<"setAutoresizingMask:">(this, mask); }
  void setTag(NSInteger tag) { objc::send<"setTag:">(this, tag); }
  /// The view itself or a view below it, or nil.
  UIView* viewWithTag(NSInteger tag) { return objc::send<"viewWithTag:", UIView*>(this, tag); }
  void setBackgroundColor(UIColor* color) { objc::send<"setBackgroundColor:">(this, color); }
  void setAlpha(CGFloat alpha) { objc::send<"setAlpha:">(this, alpha); }

  void setNeedsLayout() { objc::send<"setNeedsLayout">(this); }
  void layoutIfNeeded() { objc::send<"layoutIfNeeded">(this); }
  /// For the host's own layout alone; others ask by setNeedsLayout().
  void layoutSubviews() { objc::send<"layoutSubviews">(this); }
  void drawRect(CGRect rect) { objc::send<"drawRect:">(this, rect); }
  CGSize sizeThatFits(CGSize size) { return objc::send<"sizeThatFits:", CGSize>(this, size); }
};
