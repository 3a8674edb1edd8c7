#include "phone/uikit/view_drawing.h"

#include <cmath>

#include "phone/uikit/ui_color.h"
#include "phone/uikit/ui_graphics.h"
#include "phone/uikit/ui_view.h"

namespace phone {

namespace {

void drawOwnContent(cairo_t* canvas, UIView* view, const ViewState& state) {
  const CGRect bounds{state.boundsOrigin, state.frame.size};
  if (state.backgroundColor) {
    const auto [red, green, blue, alpha] = rgbaOf(state.backgroundColor.get());
    cairo_set_source_rgba(canvas, red, green, blue, alpha);
    cairo_rectangle(canvas, bounds.origin.x, bounds.origin.y, bounds.size.width, bounds.size.height);
    cairo_fill(canvas);
  }
  cairo_save(canvas);
  // What a view draws outside its bounds is not seen.
  cairo_rectangle(canvas, bounds.origin.x, bounds.origin.y, bounds.size.width, bounds.size.height);
  cairo_clip(canvas);
  const CurrentContext current(canvas);
  objc::send<"drawRect:">(view, bounds);
  cairo_restore(canvas);
}

void drawHierarchy(cairo_t* canvas, UIView* view) {
  const ViewState& state = stateOf<ViewState>(view);
  if (state.hidden || !(state.alpha > 0)) return;
  const CGRect bounds{state.boundsOrigin, state.frame.size};
  cairo_save(canvas);
  cairo_translate(canvas, state.frame.origin.x - bounds.origin.x, state.frame.origin.y - bounds.origin.y);
  // A translucent view is one layer: its parts do not show through one another.
  const bool isTranslucent = state.alpha < 1;
  if (isTranslucent) cairo_push_group(canvas);
  drawOwnContent(canvas, view, state);
  if (state.clipsToBounds) {
    cairo_rectangle(canvas, bounds.origin.x, bounds.origin.y, bounds.size.width, bounds.size.height);
    cairo_clip(canvas);
  }
  for (const auto& subview : std::vector(state.subviews)) drawHierarchy(canvas, subview.get());
  if (isTranslucent) {
    cairo_pop_group_to_source(canvas);
    cairo_paint_with_alpha(canvas, state.alpha);
  }
  cairo_restore(canvas);
}

}  // namespace

void drawView(cairo_t* canvas, UIView* view) {
  objc::send<"layoutIfNeeded">(view);
  const CGPoint corner = view->frame().origin;
  cairo_save(canvas);
  cairo_new_path(canvas);
  cairo_translate(canvas, -corner.x, -corner.y);
  drawHierarchy(canvas, view);
  cairo_restore(canvas);
}

Surface pictureOfView(UIView* view, double scale) {
  const CGSize size = view->bounds().size;
  Surface surface = makeSurface(std::round(size.width * scale), std::round(size.height * scale));
  if (surface == nullptr) return nullptr;
  cairo_t* const canvas = cairo_create(surface.get());
  cairo_scale(canvas, scale, scale);
  drawView(canvas, view);
  cairo_destroy(canvas);
  return surface;
}

void addRoundedRect(cairo_t* canvas, CGRect rect, double radius) {
  const double left = rect.origin.x + radius;
  const double top = rect.origin.y + radius;
  const double right = rect.origin.x + rect.size.width - radius;
  const double bottom = rect.origin.y + rect.size.height - radius;
  cairo_new_sub_path(canvas);
  cairo_arc(canvas, left, top, radius, M_PI, 1.5 * M_PI);
  cairo_arc(canvas, right, top, radius, 1.5 * M_PI, 2 * M_PI);
  cairo_arc(canvas, right, bottom, radius, 0, 0.5 * M_PI);
  cairo_arc(canvas, left, bottom, radius, 0.5 * M_PI, M_PI);
  cairo_close_path(canvas);
}

}  // namespace phone
