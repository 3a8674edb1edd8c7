// Views: the hierarchy, frames and layout. A view owns its subviews; a subview knows its superview without
// owning it.
#pragma once

#include <vector>

#include "phone/objc/class_definition.h"
#include "platform/uikit/ui_color.h"
#include "platform/uikit/ui_view.h"

namespace phone {

struct ViewState {
  CGRect frame{};
  /// Where the view's own coordinates begin; a scrolled view's content offset.
  CGPoint boundsOrigin{};
  /// Not owned.
  UIView* superview = nullptr;
  std::vector<objc::Owned<UIView>> subviews;
  objc::Owned<UIColor> backgroundColor;
  std::vector<objc::Owned<NSObject>> gestureRecognizers;
  NSUInteger autoresizingMask = 0;
  NSInteger tag = 0;
  CGFloat alpha = 1;
  /// Over so many points the view and all in it fade away towards the top and bottom edge, as under a mask.
  CGFloat edgeFade = 0;
  /// How far the view's own drawing may reach above and below its bounds, in points.
  CGFloat overhang = 0;
  bool hidden = false;
  bool clipsToBounds = false;
  bool autoresizesSubviews = true;
  bool userInteractionEnabled = true;
  bool needsLayout = true;

  ~ViewState();
};

/// The frame of a subview after its superview's size changed.
CGRect resizedFrame(CGRect frame, NSUInteger mask, CGSize oldSize, CGSize newSize);

/// The methods of UIView that add, move and remove subviews.
std::vector<MethodRows> viewHierarchyMethods();

/// A new view of that class, by alloc and initWithFrame:.
template <typename View>
objc::Owned<View> makeView(CGRect frame = {}) {
  return objc::makeWith<View, "initWithFrame:">(frame);
}

/// The same for a class that has no view of its own.
template <typename View, objc::FixedString ClassName>
objc::Owned<View> makeView(CGRect frame = {}) {
  return objc::makeWith<View, ClassName, "initWithFrame:">(frame);
}

}  // namespace phone
