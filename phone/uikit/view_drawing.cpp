#include "phone/uikit/view_drawing.h"

#include <algorithm>
#include <cmath>

#include "phone/uikit/ui_color.h"
#include "phone/uikit/ui_graphics.h"
#include "phone/uikit/ui_view.h"

namespace phone {

namespace {

void clipTo(cairo_t* canvas, CGRect rect) {
  cairo_rectangle(canvas, rect.origin.x, rect.origin.y, rect.size.width, rect.size.height);
  cairo_clip(canvas);
}

/// What the view and all below it can draw on, in the view's own coordinates: a layer need not be larger.
CGRect coveredArea(UIView* view) {
  const ViewState& state = stateOf<ViewState>(view);
  double left = state.boundsOrigin.x;
  double top = state.boundsOrigin.y - state.overhang;
  double right = left + state.frame.size.width;
  double bottom = state.boundsOrigin.y + state.frame.size.height + state.overhang;
  if (!state.clipsToBounds) {
    for (const auto& subview : state.subviews) {
      const ViewState& below = stateOf<ViewState>(subview.get());
      const CGRect area = coveredArea(subview.get());
      const double x = area.origin.x + below.frame.origin.x - below.boundsOrigin.x;
      const double y = area.origin.y + below.frame.origin.y - below.boundsOrigin.y;
      left = std::min(left, x);
      top = std::min(top, y);
      right = std::max(right, x + area.size.width);
      bottom = std::max(bottom, y + area.size.height);
    }
  }
  return {{left, top}, {right - left, bottom - top}};
}

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
  clipTo(canvas, {{bounds.origin.x, bounds.origin.y - state.overhang},
                  {bounds.size.width, bounds.size.height + 2 * state.overhang}});
  {
    const CurrentContext current(canvas);
    view->drawRect(bounds);
  }
  cairo_restore(canvas);
}

void paintFading(cairo_t* canvas, CGRect bounds, const ViewState& state) {
  const double top = bounds.origin.y;
  const double bottom = top + bounds.size.height;
  const double fade = std::min<double>(state.edgeFade / bounds.size.height, 0.5);
  cairo_pattern_t* const mask = cairo_pattern_create_linear(0, top, 0, bottom);
  cairo_pattern_add_color_stop_rgba(mask, 0, 0, 0, 0, 0);
  cairo_pattern_add_color_stop_rgba(mask, fade, 0, 0, 0, state.alpha);
  cairo_pattern_add_color_stop_rgba(mask, 1 - fade, 0, 0, 0, state.alpha);
  cairo_pattern_add_color_stop_rgba(mask, 1, 0, 0, 0, 0);
  cairo_mask(canvas, mask);
  cairo_pattern_destroy(mask);
}

void drawHierarchy(cairo_t* canvas, UIView* view) {
  const ViewState& state = stateOf<ViewState>(view);
  if (state.hidden || !(state.alpha > 0)) return;
  const CGRect bounds{state.boundsOrigin, state.frame.size};
  cairo_save(canvas);
  cairo_translate(canvas, state.frame.origin.x - bounds.origin.x, state.frame.origin.y - bounds.origin.y);
  // A translucent view is one layer: its parts do not show through one another.
  const bool isTranslucent = state.alpha < 1 || state.edgeFade > 0;
  if (isTranslucent) {
    clipTo(canvas, coveredArea(view));
    cairo_push_group(canvas);
  }
  drawOwnContent(canvas, view, state);
  if (state.clipsToBounds) clipTo(canvas, bounds);
  for (const auto& subview : std::vector(state.subviews)) drawHierarchy(canvas, subview.get());
  if (isTranslucent) {
    cairo_pop_group_to_source(canvas);
    if (state.edgeFade > 0) {
      paintFading(canvas, bounds, state);
    } else {
      cairo_paint_with_alpha(canvas, state.alpha);
    }
  }
  cairo_restore(canvas);
}

}  // namespace

void drawView(cairo_t* canvas, UIView* view) {
  view->layoutIfNeeded();
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
