// How a subview follows a change of its superview's size.
#include "phone/uikit/ui_view.h"

namespace phone {

namespace {

struct Span {
  CGFloat before;
  CGFloat length;
};

/// Shares the change among the flexible parts in proportion to their lengths, evenly when all are zero.
/// With nothing flexible the span stays where it is.
Span resized(Span span, CGFloat oldWhole, CGFloat newWhole, bool beforeFlexes, bool lengthFlexes,
             bool afterFlexes) {
  const CGFloat change = newWhole - oldWhole;
  const CGFloat after = oldWhole - span.before - span.length;
  const CGFloat flexible =
      (beforeFlexes ? span.before : 0) + (lengthFlexes ? span.length : 0) + (afterFlexes ? after : 0);
  const int count = int{beforeFlexes} + int{lengthFlexes} + int{afterFlexes};
  if (count == 0 || change == 0) return span;
  const auto share = [&](bool flexes, CGFloat length) {
    if (!flexes) return CGFloat{0};
    return flexible > 0 ? change * length / flexible : change / count;
  };
  return {span.before + share(beforeFlexes, span.before), span.length + share(lengthFlexes, span.length)};
}

}  // namespace

CGRect resizedFrame(CGRect frame, NSUInteger mask, CGSize oldSize, CGSize newSize) {
  const auto has = [mask](UIView::Autoresizing part) { return (mask & part) != 0; };
  const Span across = resized({frame.origin.x, frame.size.width}, oldSize.width, newSize.width,
                              has(UIView::kFlexibleLeftMargin), has(UIView::kFlexibleWidth),
                              has(UIView::kFlexibleRightMargin));
  const Span down = resized({frame.origin.y, frame.size.height}, oldSize.height, newSize.height,
                            has(UIView::kFlexibleTopMargin), has(UIView::kFlexibleHeight),
                            has(UIView::kFlexibleBottomMargin));
  return {{across.before, down.before}, {across.length, down.length}};
}

}  // namespace phone
