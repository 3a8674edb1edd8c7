#include "phone/uikit/cg_context.h"

#include <algorithm>
#include <cmath>
#include <utility>

CGContext::CGContext(phone::Surface canvasSurface, double pixelsPerPoint)
    : canvas(cairo_create(canvasSurface.get())), surface(std::move(canvasSurface)), scale(pixelsPerPoint) {
  if (scale != 1) cairo_scale(canvas, scale, scale);
}

CGContext::CGContext(cairo_t* borrowedCanvas) : canvas(cairo_reference(borrowedCanvas)) {}

namespace {

void useColor(cairo_t* canvas, const CGColor& color) {
  const auto [red, green, blue, alpha] = phone::rgbaOf(&color);
  cairo_set_source_rgba(canvas, red, green, blue, alpha);
}

/// True for a length that Cairo draws in reasonable time. It breaks curves into pieces by their size in
/// pixels, wherever they lie, and would be busy with an absurd one for minutes.
bool isDrawable(cairo_t* canvas, double width, double height) {
  constexpr double kMaxPixels = 100000;
  cairo_user_to_device_distance(canvas, &width, &height);
  return std::abs(width) <= kMaxPixels && std::abs(height) <= kMaxPixels;
}

/// Replaces the path by the ellipse; false when there is nothing to draw.
bool setEllipse(cairo_t* canvas, CGRect rect) {
  const double width = CGRectGetWidth(rect);
  const double height = CGRectGetHeight(rect);
  cairo_new_path(canvas);
  if (!(width > 0) || !(height > 0) || !isDrawable(canvas, width, height)) return false;
  cairo_matrix_t before;
  cairo_get_matrix(canvas, &before);
  cairo_translate(canvas, CGRectGetMinX(rect) + width / 2, CGRectGetMinY(rect) + height / 2);
  cairo_scale(canvas, width / 2, height / 2);
  cairo_arc(canvas, 0, 0, 1, 0, 2 * M_PI);
  cairo_close_path(canvas);
  // The line must not be stretched with the circle.
  cairo_set_matrix(canvas, &before);
  return true;
}

}  // namespace

void CGContextSetLineWidth(CGContextRef context, CGFloat width) {
  if (context != nullptr && isDrawable(context->canvas, width, width)) {
    cairo_set_line_width(context->canvas, width);
  }
}

void CGContextSetStrokeColorWithColor(CGContextRef context, CGColorRef color) {
  if (context != nullptr && color != nullptr) context->colors.stroke = *color;
}

void CGContextSetFillColorWithColor(CGContextRef context, CGColorRef color) {
  if (context != nullptr && color != nullptr) context->colors.fill = *color;
}

void CGContextStrokeEllipseInRect(CGContextRef context, CGRect rect) {
  if (context == nullptr || !setEllipse(context->canvas, rect)) return;
  useColor(context->canvas, context->colors.stroke);
  cairo_stroke(context->canvas);
}

void CGContextFillEllipseInRect(CGContextRef context, CGRect rect) {
  if (context == nullptr || !setEllipse(context->canvas, rect)) return;
  useColor(context->canvas, context->colors.fill);
  cairo_fill(context->canvas);
}

void CGContextBeginPath(CGContextRef context) {
  if (context != nullptr) cairo_new_path(context->canvas);
}

void CGContextSaveGState(CGContextRef context) {
  if (context == nullptr) return;
  context->savedColors.push_back(context->colors);
  cairo_save(context->canvas);
}

void CGContextRestoreGState(CGContextRef context) {
  if (context == nullptr || context->savedColors.empty()) return;
  context->colors = context->savedColors.back();
  context->savedColors.pop_back();
  cairo_restore(context->canvas);
}

void CGContextTranslateCTM(CGContextRef context, CGFloat x, CGFloat y) {
  if (context != nullptr) cairo_translate(context->canvas, x, y);
}

void CGContextScaleCTM(CGContextRef context, CGFloat x, CGFloat y) {
  if (context != nullptr) cairo_scale(context->canvas, x, y);
}

void CGContextMoveToPoint(CGContextRef context, CGFloat x, CGFloat y) {
  if (context != nullptr) cairo_move_to(context->canvas, x, y);
}

void CGContextAddArcToPoint(CGContextRef context, CGFloat cornerX, CGFloat cornerY, CGFloat endX,
                            CGFloat endY, CGFloat radius) {
  if (context == nullptr || !cairo_has_current_point(context->canvas)) return;
  cairo_t* const canvas = context->canvas;
  double startX;
  double startY;
  cairo_get_current_point(canvas, &startX, &startY);
  // From the corner, the unit vectors back to the start and on to the end; the arc touches both legs at
  // the same distance from the corner.
  const double backLength = std::hypot(startX - cornerX, startY - cornerY);
  const double onLength = std::hypot(endX - cornerX, endY - cornerY);
  const double backX = (startX - cornerX) / backLength;
  const double backY = (startY - cornerY) / backLength;
  const double onX = (endX - cornerX) / onLength;
  const double onY = (endY - cornerY) / onLength;
  const double turn = backX * onY - backY * onX;
  if (!(std::abs(turn) > 1e-9) || !(radius > 0) || !isDrawable(canvas, radius, radius)) {
    // The legs lie on one line, or the radius is none to speak of: the corner itself is the path.
    cairo_line_to(canvas, cornerX, cornerY);
    return;
  }
  const double halfAngle = std::acos(std::clamp(backX * onX + backY * onY, -1.0, 1.0)) / 2;
  const double touch = radius / std::tan(halfAngle);
  const double side = turn < 0 ? 1 : -1;
  const double centerX = cornerX + backX * touch + side * backY * radius;
  const double centerY = cornerY + backY * touch - side * backX * radius;
  const double from = std::atan2(cornerY + backY * touch - centerY, cornerX + backX * touch - centerX);
  const double to = std::atan2(cornerY + onY * touch - centerY, cornerX + onX * touch - centerX);
  if (side > 0) {
    cairo_arc(canvas, centerX, centerY, radius, from, to);
  } else {
    cairo_arc_negative(canvas, centerX, centerY, radius, from, to);
  }
}

void CGContextClosePath(CGContextRef context) {
  if (context != nullptr) cairo_close_path(context->canvas);
}

void CGContextClip(CGContextRef context) {
  if (context != nullptr) cairo_clip(context->canvas);
}
