// Views that show a part of a larger content: where it begins is the origin of their bounds.
#include "phone/uikit/definitions.h"
#include "phone/uikit/ui_view.h"

namespace phone {

namespace {

struct ScrollState {
  CGSize contentSize{};
};

UIView* initWithFrame(UIView* self, SEL selector, CGRect frame) {
  self = objc::sendSuper<UIView*>(objc::classOf<UIView>(), self, selector, frame);
  stateOf<ViewState>(self).clipsToBounds = true;
  return self;
}

CGPoint contentOffset(UIView* self, SEL) { return stateOf<ViewState>(self).boundsOrigin; }

void setContentOffset(UIView* self, SEL, CGPoint offset) {
  stateOf<ViewState>(self).boundsOrigin = offset;
  self->setNeedsLayout();
}

}  // namespace

ClassDefinition uiScrollView() {
  return {.name = "UIScrollView",
          .superclass = "UIView",
          .state = state<ScrollState>(),
          .methods = {
              method("initWithFrame:", initWithFrame),
              property<&ScrollState::contentSize, "contentSize">(),
              method("contentOffset", contentOffset),
              method("setContentOffset:", setContentOffset),
          }};
}

}  // namespace phone
