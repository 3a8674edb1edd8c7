// Off-screen canvases and paths, by the pixels they leave.
#include <cmath>
#include <limits>

#include "phone/uikit/ui_graphics.h"
#include "phone/uikit/ui_image.h"
#include "platform/uikit/ui_color.h"
#include "tests/support/picture_comparison.h"
#include "tests/uikit/uikit_test.h"

namespace phone {
namespace {

class Canvas : public UIKitTest {
 protected:
  static Surface takeImage() {
    Surface surface = surfaceOf(UIGraphicsGetImageFromCurrentImageContext());
    UIGraphicsEndImageContext();
    return surface;
  }

  static void setFill(UIColor* color) {
    CGContextSetFillColorWithColor(UIGraphicsGetCurrentContext(), color->getCGColor());
  }

  static Surface redSquare(double side) {
    UIGraphicsBeginImageContext({side, side});
    setFill(UIColor::redColor());
    CGContextFillEllipseInRect(UIGraphicsGetCurrentContext(), {{-side, -side}, {3 * side, 3 * side}});
    return takeImage();
  }

  /// The image with rounded corners, drawn as the plug-in draws it: in coordinates scaled by the radius.
  static Surface rounded(const Surface& image, double side, double radius, double scale) {
    UIGraphicsBeginImageContextWithOptions({side, side}, false, scale);
    CGContextRef const context = UIGraphicsGetCurrentContext();
    const double edge = side / radius;
    CGContextBeginPath(context);
    CGContextSaveGState(context);
    CGContextScaleCTM(context, radius, radius);
    CGContextMoveToPoint(context, edge, edge / 2);
    CGContextAddArcToPoint(context, edge, edge, edge / 2, edge, radius);
    CGContextAddArcToPoint(context, 0, edge, 0, edge / 2, radius);
    CGContextAddArcToPoint(context, 0, 0, edge / 2, 0, radius);
    CGContextAddArcToPoint(context, edge, 0, edge, edge / 2, radius);
    CGContextRestoreGState(context);
    CGContextClosePath(context);
    CGContextClip(context);
    makeImage(image, 1)->drawInRect({{0, 0}, {side, side}});
    return takeImage();
  }
};

TEST_F(Canvas, DotIsADiscWithARingOnePointWide) {
  for (const double diameter : {30.0, 50.0}) {
    UIGraphicsBeginImageContext({80, 80});
    CGContextRef const context = UIGraphicsGetCurrentContext();
    const CGRect square{{40 - diameter / 2, 40 - diameter / 2}, {diameter, diameter}};
    CGContextSetLineWidth(context, 2);
    CGContextSetStrokeColorWithColor(context, UIColor::blackColor()->getCGColor());
    setFill(UIColor::orangeColor());
    CGContextStrokeEllipseInRect(context, square);
    CGContextFillEllipseInRect(context, square);
    const Surface dot = takeImage();
    ASSERT_EQ(cairo_image_surface_get_width(dot.get()), 80);
    const Pixel orange = {255, 128, 0, 255};
    const int radius = static_cast<int>(diameter / 2);
    EXPECT_LE(pixelDistance(pixelAt(dot, 40, 40), orange), 1);
    EXPECT_LE(pixelDistance(pixelAt(dot, 40 + radius - 2, 40), orange), 1);
    // The ring lies between the radius and one point beyond it, on both sides.
    for (const int x : {40 + radius, 40 - radius - 1}) {
      EXPECT_GT(pixelAt(dot, x, 40).alpha, 240) << x;
      EXPECT_LT(pixelAt(dot, x, 40).red, 40) << x;
    }
    EXPECT_LT(pixelAt(dot, 40 + radius + 1, 40).alpha, 10);
    EXPECT_EQ(pixelAt(dot, 0, 0), kTransparent);
    double area = 0;
    for (int y = 0; y < 80; ++y) {
      for (int x = 0; x < 80; ++x) area += pixelAt(dot, x, y).alpha / 255.0;
    }
    EXPECT_NEAR(area, M_PI * (radius + 1) * (radius + 1), 0.01 * area);
  }
}

TEST_F(Canvas, CornerRadiusIsScaledWithTheCoordinates) {
  constexpr double kSide = 29;
  constexpr double kScale = 2;
  const Surface red = redSquare(kSide);
  for (const double radius : {1.0, 2.0, 3.0}) {
    const Surface image = rounded(red, kSide, radius, kScale);
    ASSERT_EQ(cairo_image_surface_get_width(image.get()), 58);
    const double visible = radius * radius;
    // Along each corner's diagonal, the arc begins this far from the corner, in points along one axis.
    const double gap = visible * (1 - std::sqrt(0.5));
    for (const bool right : {false, true}) {
      for (const bool bottom : {false, true}) {
        const auto at = [&](double points) {
          const int near = static_cast<int>(points * kScale);
          return pixelAt(image, right ? 57 - near : near, bottom ? 57 - near : near);
        };
        EXPECT_EQ(at(gap + 0.8), (Pixel{255, 0, 0, 255})) << radius << right << bottom;
        if (gap > 0.8) {
          EXPECT_EQ(at(gap - 0.8), kTransparent) << radius << right << bottom;
        }
      }
    }
    // Where the arc meets the edges they are whole.
    EXPECT_EQ(pixelAt(image, static_cast<int>(visible * kScale) + 1, 0).alpha, 255) << radius;
    EXPECT_EQ(pixelAt(image, 57, 29).alpha, 255) << radius;
  }
}

TEST_F(Canvas, RestoringBringsBackColoursClipAndCoordinatesButKeepsThePath) {
  UIGraphicsBeginImageContext({40, 40});
  CGContextRef const context = UIGraphicsGetCurrentContext();
  setFill(UIColor::greenColor());
  CGContextSaveGState(context);
  setFill(UIColor::redColor());
  CGContextScaleCTM(context, 10, 10);
  CGContextBeginPath(context);
  CGContextMoveToPoint(context, 1, 1);
  CGContextAddArcToPoint(context, 2, 1, 2, 2, 0);
  CGContextAddArcToPoint(context, 2, 2, 1, 2, 0);
  CGContextAddArcToPoint(context, 1, 2, 1, 1, 0);
  CGContextRestoreGState(context);
  // An arc in other coordinates leaves what is there where it is.
  CGContextClosePath(context);
  CGContextClip(context);
  CGContextFillEllipseInRect(context, {{-40, -40}, {120, 120}});
  CGContextRestoreGState(context);
  const Surface image = takeImage();
  EXPECT_EQ(pixelAt(image, 15, 15), (Pixel{0, 255, 0, 255}));
  for (const int place : {9, 20}) EXPECT_EQ(pixelAt(image, place, 15), kTransparent) << place;
}

TEST_F(Canvas, ImageIsWhatTheCanvasHeldWhenItWasTaken) {
  UIGraphicsBeginImageContext({4, 4});
  const Surface before = surfaceOf(UIGraphicsGetImageFromCurrentImageContext());
  setFill(UIColor::redColor());
  CGContextFillEllipseInRect(UIGraphicsGetCurrentContext(), {{-8, -8}, {20, 20}});
  const Surface after = takeImage();
  EXPECT_EQ(pixelAt(before, 2, 2), kTransparent);
  EXPECT_EQ(pixelAt(after, 2, 2), (Pixel{255, 0, 0, 255}));
}

TEST_F(Canvas, StackGivesTheContextThatWasPushedOrBegunLast) {
  EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr);
  UIGraphicsPopContext();
  UIGraphicsEndImageContext();
  UIGraphicsBeginImageContextWithOptions({10, 10}, true, 0);
  CGContextRef const outer = UIGraphicsGetCurrentContext();
  UIGraphicsBeginImageContext({5, 5});
  EXPECT_NE(UIGraphicsGetCurrentContext(), outer);
  UIGraphicsPushContext(outer);
  EXPECT_EQ(UIGraphicsGetCurrentContext(), outer);
  UIGraphicsPopContext();
  UIGraphicsPopContext();
  UIGraphicsEndImageContext();
  EXPECT_EQ(UIGraphicsGetCurrentContext(), outer);
  UIImage* const image = UIGraphicsGetImageFromCurrentImageContext();
  EXPECT_EQ(image->scale(), 2);
  EXPECT_EQ(image->size().width, 10);
  EXPECT_EQ(pixelAt(surfaceOf(image), 0, 0), (Pixel{0, 0, 0, 255}));
  UIGraphicsEndImageContext();
  EXPECT_EQ(UIGraphicsGetCurrentContext(), nullptr);
}

TEST_F(Canvas, SizeThatCannotBeGivesNoCanvas) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  UIGraphicsBeginImageContext({10, 10});
  CGContextRef const outer = UIGraphicsGetCurrentContext();
  for (const CGSize size : {CGSize{0, 10}, CGSize{-5, 5}, CGSize{kNaN, 5}, CGSize{5, kInfinity},
                            CGSize{60000, 60000}, CGSize{1e300, 1e-300}, CGSize{30000, 30000}}) {
    UIGraphicsBeginImageContext(size);
    CGContextRef const context = UIGraphicsGetCurrentContext();
    EXPECT_EQ(context, nullptr) << size.width << " x " << size.height;
    // A caller that does not look draws into nothing.
    UIGraphicsPushContext(context);
    CGContextSetLineWidth(context, 2);
    CGContextFillEllipseInRect(context, {{0, 0}, {5, 5}});
    CGContextSaveGState(context);
    CGContextAddArcToPoint(context, 1, 1, 2, 2, 1);
    CGContextClip(context);
    CGContextRestoreGState(context);
    UIGraphicsPopContext();
    EXPECT_EQ(UIGraphicsGetImageFromCurrentImageContext(), nullptr);
    UIGraphicsEndImageContext();
    EXPECT_EQ(UIGraphicsGetCurrentContext(), outer);
  }
}

TEST_F(Canvas, HostileNumbersLeaveTheProcessAlive) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  for (const double number : {kNaN, 1e308, -1e308, 0.0, -3.0}) {
    UIGraphicsBeginImageContext({20, 20});
    CGContextRef const context = UIGraphicsGetCurrentContext();
    CGContextSetFillColorWithColor(context, nullptr);
    CGContextSetLineWidth(context, number);
    CGContextStrokeEllipseInRect(context, {{number, 0}, {number, 5}});
    CGContextFillEllipseInRect(context, {{0, 0}, {number, number}});
    CGContextMoveToPoint(context, number, 1);
    CGContextAddArcToPoint(context, 5, number, 5, 5, 2);
    CGContextAddArcToPoint(context, 9, 9, 9, 9, number);
    CGContextScaleCTM(context, number, number);
    CGContextTranslateCTM(context, number, number);
    CGContextClip(context);
    makeImage(makeSurface(3, 3), 1)->drawInRect({{0, 0}, {number, number}});
    EXPECT_NE(takeImage(), nullptr) << number;
  }
}

}  // namespace
}  // namespace phone
