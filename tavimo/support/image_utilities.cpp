#include "tavimo/support/image_utilities.h"

#include "platform/foundation/ns_array.h"
#include "platform/uikit/ui_application.h"
#include "platform/uikit/ui_graphics.h"
#include "platform/uikit/ui_screen.h"
#include "platform/uikit/ui_window.h"

namespace tavimo {

namespace {

constexpr double kDotCanvas = 80.0;
constexpr double kDotOutline = 2.0;

/// Pixels per point of the screen that shows the application; 1.0 when there is no screen.
CGFloat screenScale() {
  NSArray* const windows = UIApplication::sharedApplication()->windows();
  UIScreen* screen = nullptr;
  if (windows->count() > 0) screen = static_cast<UIWindow*>(windows->objectAtIndex(0))->screen();
  if (screen == nullptr) screen = UIScreen::mainScreen();
  const CGFloat scale = screen->scale();
  return scale > 0 ? scale : 1.0;
}

/// The current canvas as an image, which ends the canvas.
objc::Owned<UIImage> takeCanvas() {
  auto image = objc::Owned<UIImage>::retain(UIGraphicsGetImageFromCurrentImageContext());
  UIGraphicsEndImageContext();
  return image;
}

/// Adds a rounded rectangle of `width` by `height` points to the path, in coordinates scaled by `radius`.
void addRoundedRect(CGContextRef context, CGFloat width, CGFloat height, CGFloat radius) {
  CGContextSaveGState(context);
  CGContextTranslateCTM(context, 0, 0);
  CGContextScaleCTM(context, radius, radius);
  const CGFloat right = width / radius;
  const CGFloat bottom = height / radius;
  const CGFloat middleX = right * 0.5;
  const CGFloat middleY = bottom * 0.5;
  CGContextMoveToPoint(context, right, middleY);
  CGContextAddArcToPoint(context, right, bottom, middleX, bottom, radius);
  CGContextAddArcToPoint(context, 0, bottom, 0, middleY, radius);
  CGContextAddArcToPoint(context, 0, 0, middleX, 0, radius);
  CGContextAddArcToPoint(context, right, 0, right, middleY, radius);
  // The path outlives the state that it was built in.
  CGContextRestoreGState(context);
  CGContextClosePath(context);
}

}  // namespace

objc::Owned<UIImage> coloredDot(UIColor* color, double diameter) {
  UIGraphicsBeginImageContext({kDotCanvas, kDotCanvas});
  CGContextRef const context = UIGraphicsGetCurrentContext();
  UIGraphicsPushContext(context);
  CGContextSetLineWidth(context, kDotOutline);
  CGContextSetStrokeColorWithColor(context, UIColor::blackColor()->getCGColor());
  CGContextSetFillColorWithColor(context, color->getCGColor());
  const auto margin = static_cast<CGFloat>((kDotCanvas - diameter) * 0.5);
  const auto side = static_cast<CGFloat>(diameter);
  const CGRect square = {{margin, margin}, {side, side}};
  // The fill covers the inner half of the stroke and leaves a ring one point wide.
  CGContextStrokeEllipseInRect(context, square);
  CGContextFillEllipseInRect(context, square);
  UIGraphicsPopContext();
  return takeCanvas();
}

objc::Owned<UIImage> roundedCopy(UIImage* image, double radius) {
  if (image == nullptr) return {};
  const CGSize size = image->size();
  UIGraphicsBeginImageContextWithOptions(size, false, screenScale());
  CGContextRef const context = UIGraphicsGetCurrentContext();
  CGContextBeginPath(context);
  addRoundedRect(context, size.width, size.height, static_cast<CGFloat>(radius));
  CGContextClip(context);
  image->drawInRect({{0, 0}, size});
  return takeCanvas();
}

}  // namespace tavimo

UIImage* drawColoredDot(UIColor* color, double diameter) {
  return tavimo::coloredDot(color, diameter).relinquish();
}

UIImage* roundedRectImageFromImage(UIImage* image, double radius) {
  if (radius == 0.0) return image;
  return tavimo::roundedCopy(image, radius).relinquish();
}
