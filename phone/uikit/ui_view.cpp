#include "phone/uikit/ui_view.h"

#include <utility>

#include "phone/uikit/definitions.h"
#include "platform/foundation/ns_mutable_array.h"

namespace phone {

namespace {

ViewState& stateOfView(UIView* view) { return stateOf<ViewState>(view); }

UIView* initWithFrame(UIView* self, SEL, CGRect frame) {
  stateOfView(self).frame = frame;
  return self;
}

UIView* init(UIView* self, SEL) { return objc::send<"initWithFrame:", UIView*>(self, CGRect{}); }

void setNeedsLayout(UIView* self, SEL) { stateOfView(self).needsLayout = true; }

void resize(UIView* self, CGSize size) {
  ViewState& view = stateOfView(self);
  const CGSize old = std::exchange(view.frame.size, size);
  if (old.width == size.width && old.height == size.height) return;
  self->setNeedsLayout();
  if (!view.autoresizesSubviews) return;
  for (const auto& subview : std::vector(view.subviews)) {
    const NSUInteger mask = stateOfView(subview.get()).autoresizingMask;
    if (mask != 0) subview->setFrame(resizedFrame(subview->frame(), mask, old, size));
  }
}

void setFrame(UIView* self, SEL, CGRect frame) {
  stateOfView(self).frame.origin = frame.origin;
  resize(self, frame.size);
}

CGRect bounds(UIView* self, SEL) {
  const ViewState& view = stateOfView(self);
  return {view.boundsOrigin, view.frame.size};
}

void setBounds(UIView* self, SEL, CGRect bounds) {
  ViewState& view = stateOfView(self);
  view.boundsOrigin = bounds.origin;
  // The centre stays where it is.
  view.frame.origin.x += (view.frame.size.width - bounds.size.width) / 2;
  view.frame.origin.y += (view.frame.size.height - bounds.size.height) / 2;
  resize(self, bounds.size);
}

CGPoint center(UIView* self, SEL) {
  const CGRect frame = self->frame();
  return {frame.origin.x + frame.size.width / 2, frame.origin.y + frame.size.height / 2};
}

void setCenter(UIView* self, SEL, CGPoint center) {
  CGRect frame = self->frame();
  frame.origin = {center.x - frame.size.width / 2, center.y - frame.size.height / 2};
  self->setFrame(frame);
}

void layoutSubviews(UIView*, SEL) {}

void layoutIfNeeded(UIView* self, SEL) {
  if (stateOfView(self).needsLayout) {
    stateOfView(self).needsLayout = false;
    self->layoutSubviews();
  }
  // A layout may add and remove subviews; those that are there now are laid out.
  for (const auto& subview : std::vector(stateOfView(self).subviews)) {
    subview->layoutIfNeeded();
  }
}

void drawRect(UIView*, SEL, CGRect) {}

CGSize sizeThatFits(UIView* self, SEL, CGSize) { return self->bounds().size; }

void sizeToFit(UIView* self, SEL) {
  const CGRect frame = self->frame();
  self->setFrame({frame.origin, self->sizeThatFits(frame.size)});
}

UIView* viewWithTag(UIView* self, SEL, NSInteger tag) {
  if (stateOfView(self).tag == tag) return self;
  for (const auto& subview : stateOfView(self).subviews) {
    auto* const found = subview->viewWithTag(tag);
    if (found != nullptr) return found;
  }
  return nullptr;
}

void addGestureRecognizer(UIView* self, SEL, NSObject* recognizer) {
  if (recognizer == nullptr) return;
  stateOfView(self).gestureRecognizers.push_back(objc::Owned<NSObject>::retain(recognizer));
  objc::send<"setView:">(recognizer, self);
}

NSArray* gestureRecognizers(UIView* self, SEL) {
  NSMutableArray* const all = NSMutableArray::array();
  for (const auto& recognizer : stateOfView(self).gestureRecognizers) all->addObject(recognizer.get());
  return all;
}

UIView* superview(UIView* self, SEL) { return stateOfView(self).superview; }

}  // namespace

ViewState::~ViewState() {
  for (const auto& subview : subviews) stateOfView(subview.get()).superview = nullptr;
}

ClassDefinition uiResponder() { return {.name = "UIResponder", .superclass = "NSObject"}; }

ClassDefinition uiView() {
  ClassDefinition definition{.name = "UIView",
                             .superclass = "UIResponder",
                             .state = state<ViewState>(),
                             .methods = {
                                 method("init", init),
                                 method("initWithFrame:", initWithFrame),
                                 getter<&ViewState::frame>("frame"),
                                 method("setFrame:", setFrame),
                                 method("bounds", bounds),
                                 method("setBounds:", setBounds),
                                 method("center", center),
                                 method("setCenter:", setCenter),
                                 method("superview", superview),
                                 method("viewWithTag:", viewWithTag),
                                 property<&ViewState::tag, "tag">(),
                                 property<&ViewState::alpha, "alpha">(),
                                 property<&ViewState::hidden, "isHidden", "setHidden:">(),
                                 property<&ViewState::clipsToBounds, "clipsToBounds">(),
                                 property<&ViewState::backgroundColor, "backgroundColor">(),
                                 property<&ViewState::userInteractionEnabled, "isUserInteractionEnabled",
                                          "setUserInteractionEnabled:">(),
                                 property<&ViewState::autoresizingMask, "autoresizingMask">(),
                                 property<&ViewState::autoresizesSubviews, "autoresizesSubviews">(),
                                 method("sizeThatFits:", sizeThatFits),
                                 method("sizeToFit", sizeToFit),
                                 method("setNeedsLayout", setNeedsLayout),
                                 method("layoutIfNeeded", layoutIfNeeded),
                                 method("layoutSubviews", layoutSubviews),
                                 method("drawRect:", drawRect),
                                 method("addGestureRecognizer:", addGestureRecognizer),
                                 method("gestureRecognizers", gestureRecognizers),
                             }};
  for (auto& method : viewHierarchyMethods()) definition.methods.push_back(method);
  return definition;
}

}  // namespace phone
