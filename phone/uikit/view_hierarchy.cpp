// Adding, moving and removing subviews.
#include <algorithm>
#include <utility>

#include "phone/uikit/ui_view.h"
#include "platform/foundation/ns_log.h"
#include "platform/foundation/ns_mutable_array.h"

namespace phone {

namespace {

std::vector<objc::Owned<UIView>>& subviewsOf(UIView* view) { return stateOf<ViewState>(view).subviews; }

NSArray* subviews(UIView* self, SEL) {
  NSMutableArray* const all = NSMutableArray::array();
  for (const auto& subview : subviewsOf(self)) all->addObject(subview.get());
  return all;
}

bool isAncestor(UIView* candidate, UIView* view) {
  for (; view != nullptr; view = stateOf<ViewState>(view).superview) {
    if (view == candidate) return true;
  }
  return false;
}

auto findSubview(UIView* self, UIView* view) {
  auto& all = subviewsOf(self);
  return std::find_if(all.begin(), all.end(), [view](const auto& each) { return each.get() == view; });
}

void removeFromSuperview(UIView* self, SEL) {
  ViewState& state = stateOf<ViewState>(self);
  UIView* const superview = std::exchange(state.superview, nullptr);
  if (superview == nullptr) return;
  // The superview may hold the last reference.
  const auto kept = objc::Owned<UIView>::retain(self);
  if (const auto place = findSubview(superview, self); place != subviewsOf(superview).end()) {
    subviewsOf(superview).erase(place);
  }
  superview->setNeedsLayout();
  self->didMoveToSuperview();
}

void insert(UIView* self, UIView* view, NSUInteger index) {
  if (view == nullptr) return;
  if (isAncestor(view, self)) {
    NSLog(NSString::stringWithUTF8String("%@ was not added to %@: a view cannot be its own ancestor"), view,
          self);
    return;
  }
  const auto kept = objc::Owned<UIView>::retain(view);
  // A view that only changes its place does not leave its superview.
  if (const auto place = findSubview(self, view); place != subviewsOf(self).end()) {
    subviewsOf(self).erase(place);
  } else {
    view->removeFromSuperview();
  }
  auto& all = subviewsOf(self);
  all.insert(all.begin() + static_cast<std::ptrdiff_t>(std::min<std::size_t>(index, all.size())), kept);
  stateOf<ViewState>(view).superview = self;
  self->setNeedsLayout();
  view->didMoveToSuperview();
}

void addSubview(UIView* self, SEL, UIView* view) { insert(self, view, NSNotFound); }

void insertSubviewAtIndex(UIView* self, SEL, UIView* view, NSInteger index) {
  insert(self, view, index < 0 ? 0 : static_cast<NSUInteger>(index));
}

void insertSubviewBelow(UIView* self, SEL, UIView* view, UIView* sibling) {
  const auto place = findSubview(self, sibling);
  insert(self, view, static_cast<NSUInteger>(place - subviewsOf(self).begin()));
}

void bringSubviewToFront(UIView* self, SEL, UIView* view) {
  if (findSubview(self, view) != subviewsOf(self).end()) insert(self, view, NSNotFound);
}

bool isDescendantOfView(UIView* self, SEL, UIView* view) { return isAncestor(view, self); }

void didMoveToSuperview(UIView*, SEL) {}

}  // namespace

std::vector<MethodRows> viewHierarchyMethods() {
  return {
      method("subviews", subviews),
      method("addSubview:", addSubview),
      method("insertSubview:atIndex:", insertSubviewAtIndex),
      method("insertSubview:belowSubview:", insertSubviewBelow),
      method("bringSubviewToFront:", bringSubviewToFront),
      method("removeFromSuperview", removeFromSuperview),
      method("isDescendantOfView:", isDescendantOfView),
      method("didMoveToSuperview", didMoveToSuperview),
  };
}

}  // namespace phone
