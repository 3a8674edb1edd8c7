// The view hierarchy, resizing, layout and drawing.
#include "phone/foundation/log_sink.h"
#include "phone/uikit/blur.h"
#include "phone/uikit/ui_view.h"
#include "phone/uikit/view_drawing.h"
#include "platform/foundation/ns_array.h"
#include "platform/uikit/ui_graphics.h"
#include "tests/support/picture_comparison.h"
#include "tests/uikit/uikit_test.h"

namespace phone {
namespace {

class Views : public UIKitTest {
 protected:
  static objc::Owned<UIView> view(CGRect frame = {{0, 0}, {10, 10}}) { return makeView<UIView>(frame); }
  static objc::Owned<UIView> filled(CGRect frame, UIColor* color) {
    auto made = view(frame);
    objc::send<"setBackgroundColor:">(made.get(), color);
    return made;
  }
  static NSUInteger indexIn(UIView* superview, UIView* subview) {
    return superview->subviews()->indexOfObject(subview);
  }
};

TEST_F(Views, SubviewHasOneSuperviewAndAPlace) {
  const auto first = view();
  const auto second = view();
  const auto a = view();
  const auto b = view();
  first->addSubview(a.get());
  first->addSubview(b.get());
  EXPECT_EQ(a->superview(), first.get());
  first->addSubview(a.get());
  EXPECT_EQ(indexIn(first.get(), a.get()), 1U);
  EXPECT_EQ(first->subviews()->count(), 2U);
  objc::send<"insertSubview:atIndex:">(first.get(), a.get(), NSInteger{0});
  EXPECT_EQ(indexIn(first.get(), a.get()), 0U);
  objc::send<"insertSubview:atIndex:">(first.get(), a.get(), NSInteger{99});
  EXPECT_EQ(indexIn(first.get(), a.get()), 1U);
  second->addSubview(a.get());
  EXPECT_EQ(a->superview(), second.get());
  EXPECT_EQ(first->subviews()->count(), 1U);
  objc::send<"removeFromSuperview">(a.get());
  EXPECT_EQ(a->superview(), nullptr);
  EXPECT_EQ(second->subviews()->count(), 0U);
  first->addSubview(nullptr);
  EXPECT_EQ(first->subviews()->count(), 1U);
}

TEST_F(Views, ViewIsNeverItsOwnAncestor) {
  const auto top = view();
  const auto middle = view();
  const auto bottom = view();
  top->addSubview(middle.get());
  middle->addSubview(bottom.get());
  const std::size_t before = logCount();
  bottom->addSubview(top.get());
  top->addSubview(top.get());
  EXPECT_EQ(top->superview(), nullptr);
  EXPECT_EQ(bottom->subviews()->count(), 0U);
  EXPECT_EQ(logCount(), before + 2);
  EXPECT_NE(logLines().back().find("own ancestor"), std::string::npos);
}

TEST_F(Views, SuperviewThatGoesLeavesItsSubviewsWithoutOne) {
  const auto kept = view();
  {
    const AutoreleasePool pool;
    const auto passing = view();
    passing->addSubview(kept.get());
  }
  EXPECT_EQ(kept->superview(), nullptr);
}

TEST_F(Views, TagsAreFoundBelow) {
  const auto top = view();
  const auto inner = view();
  const auto tagged = view();
  tagged->setTag(100);
  inner->addSubview(tagged.get());
  top->addSubview(inner.get());
  EXPECT_EQ((objc::send<"viewWithTag:", UIView*>(top.get(), NSInteger{100})), tagged.get());
  EXPECT_EQ((objc::send<"viewWithTag:", UIView*>(top.get(), NSInteger{7})), nullptr);
}

TEST_F(Views, SubviewsFollowTheirSuperviewsSizeByTheirMask) {
  // A span of 20 that begins at 10 in a whole of 100, which grows to 200.
  const struct {
    NSUInteger mask;
    double before;
    double length;
  } rows[] = {
      {0, 10, 20},
      {UIView::kFlexibleLeftMargin, 110, 20},
      {UIView::kFlexibleWidth, 10, 120},
      {UIView::kFlexibleRightMargin, 10, 20},
      {UIView::kFlexibleLeftMargin | UIView::kFlexibleRightMargin, 10 + 100 * 10 / 80.0, 20},
      {UIView::kFlexibleLeftMargin | UIView::kFlexibleWidth, 10 + 100 * 10 / 30.0, 20 + 100 * 20 / 30.0},
      {UIView::kFlexibleLeftMargin | UIView::kFlexibleWidth | UIView::kFlexibleRightMargin, 20, 40},
  };
  for (const auto& [mask, before, length] : rows) {
    // The vertical parts of a mask are the horizontal ones three bits up.
    for (const bool vertical : {false, true}) {
      const auto superview = view({{0, 0}, {100, 100}});
      const auto subview = view({{10, 10}, {20, 20}});
      superview->addSubview(subview.get());
      subview->setAutoresizingMask(vertical ? mask << 3 : mask);
      superview->setFrame(vertical ? CGRect{{0, 0}, {100, 200}} : CGRect{{0, 0}, {200, 100}});
      const CGRect frame = subview->frame();
      EXPECT_DOUBLE_EQ(vertical ? frame.origin.y : frame.origin.x, before) << mask;
      EXPECT_DOUBLE_EQ(vertical ? frame.size.height : frame.size.width, length) << mask;
      EXPECT_EQ(vertical ? frame.size.width : frame.size.height, 20) << mask;
    }
  }
  // From no size at all, with nothing to go by, the parts share evenly.
  const CGRect grown = resizedFrame({}, UIView::kFlexibleLeftMargin | UIView::kFlexibleWidth, {}, {100, 0});
  EXPECT_EQ(grown.origin.x, 50);
  EXPECT_EQ(grown.size.width, 50);
}

struct CountingState {
  int layouts = 0;
};
void countLayout(UIView* self, SEL) { ++stateOf<CountingState>(self).layouts; }

TEST_F(Views, LayoutHappensOncePerChange) {
  registerClass({.name = "CountingView",
                 .superclass = "UIView",
                 .state = state<CountingState>(),
                 .methods = {method("layoutSubviews", countLayout)}});
  const auto superview = view();
  const auto counting = makeView<UIView, "CountingView">();
  superview->addSubview(counting.get());
  const int& layouts = stateOf<CountingState>(counting.get()).layouts;
  objc::send<"layoutIfNeeded">(superview.get());
  objc::send<"layoutIfNeeded">(superview.get());
  EXPECT_EQ(layouts, 1);
  counting->setFrame({{3, 3}, {0, 0}});
  objc::send<"layoutIfNeeded">(superview.get());
  EXPECT_EQ(layouts, 1);
  counting->setFrame({{3, 3}, {5, 5}});
  objc::send<"layoutIfNeeded">(superview.get());
  EXPECT_EQ(layouts, 2);
  counting->addSubview(view().get());
  counting->addSubview(view().get());
  objc::send<"layoutIfNeeded">(superview.get());
  EXPECT_EQ(layouts, 3);
}

TEST_F(Views, DrawingFollowsPlaceOrderAlphaAndClipping) {
  const auto page = filled({{50, 50}, {20, 20}}, UIColor::whiteColor());
  const auto red = filled({{2, 2}, {8, 8}}, UIColor::redColor());
  const auto blue = filled({{4, 4}, {8, 8}}, UIColor::blueColor());
  page->addSubview(red.get());
  red->addSubview(blue.get());
  const Pixel white = {255, 255, 255, 255};
  const auto at = [&](int x, int y) { return pixelAt(pictureOfView(page.get(), 1), x, y); };
  EXPECT_EQ(at(1, 1), white);
  EXPECT_EQ(at(3, 3), (Pixel{255, 0, 0, 255}));
  EXPECT_EQ(at(8, 8), (Pixel{0, 0, 255, 255}));
  EXPECT_EQ(at(12, 12), (Pixel{0, 0, 255, 255}));
  objc::send<"setClipsToBounds:">(red.get(), true);
  EXPECT_EQ(at(12, 12), white);
  // Half of the two as one layer: the red does not show through the blue.
  objc::send<"setAlpha:">(red.get(), CGFloat{0.5});
  EXPECT_LE(pixelDistance(at(8, 8), {127, 127, 255, 255}), 1);
  EXPECT_LE(pixelDistance(at(3, 3), {255, 127, 127, 255}), 1);
  objc::send<"setHidden:">(red.get(), true);
  EXPECT_EQ(at(8, 8), white);
  EXPECT_EQ(pictureOfView(view({{0, 0}, {60000, 60000}}).get(), 2), nullptr);
}

void drawWithoutTidyingUp(UIView*, SEL, CGRect) {
  CGContextRef const context = UIGraphicsGetCurrentContext();
  CGContextSaveGState(context);
  CGContextTranslateCTM(context, 5, 5);
  UIGraphicsBeginImageContext({3, 3});
}

TEST_F(Views, DrawingThatLeavesItsStateBehindDoesNotReachTheNextView) {
  registerClass(
      {.name = "UntidyView", .superclass = "UIView", .methods = {method("drawRect:", drawWithoutTidyingUp)}});
  const auto page = filled({{0, 0}, {20, 20}}, UIColor::whiteColor());
  const auto red = filled({{2, 2}, {4, 4}}, UIColor::redColor());
  page->addSubview(makeView<UIView, "UntidyView">({{0, 0}, {10, 10}}).get());
  page->addSubview(red.get());
  const Surface picture = pictureOfView(page.get(), 1);
  EXPECT_EQ(pixelAt(picture, 2, 2), (Pixel{255, 0, 0, 255}));
  EXPECT_EQ(pixelAt(picture, 7, 7), (Pixel{255, 255, 255, 255}));
  EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr);
}

TEST_F(Views, BlurSpreadsAnEdgeAndKeepsWhatIsEven) {
  const auto page = filled({{0, 0}, {200, 40}}, UIColor::whiteColor());
  page->addSubview(filled({{0, 0}, {100, 40}}, UIColor::blackColor()).get());
  const Surface blurred = blurredCopy(pictureOfView(page.get(), 1), 20);
  EXPECT_LE(pixelAt(blurred, 2, 20).red, 1);
  EXPECT_GE(pixelAt(blurred, 197, 20).red, 254);
  EXPECT_NEAR(pixelAt(blurred, 100, 20).red, 128, 8);
  int before = 0;
  for (int x = 0; x < 200; ++x) {
    const Pixel pixel = pixelAt(blurred, x, 20);
    EXPECT_GE(pixel.red, before) << x;
    EXPECT_EQ(pixel.alpha, 255) << x;
    before = pixel.red;
  }
  // A quarter of the way through the edge's slope: neither black nor even grey.
  EXPECT_NEAR(pixelAt(blurred, 92, 20).red, 45, 30);
  darken(blurred, 0.5);
  EXPECT_NEAR(pixelAt(blurred, 197, 20).red, 127, 1);
}

}  // namespace
}  // namespace phone
