// What stands behind a CGContextRef: a Cairo context and the two colours that Cairo does not keep apart.
// Cairo keeps line width, transformation and clip per saved state and the path outside it, in pixels, as the
// phone does; so every function is one or two calls of Cairo.
#pragma once

#include <cairo.h>
#include <memory>
#include <vector>

#include "phone/uikit/cg_color.h"
#include "phone/uikit/surface.h"
#include "platform/coregraphics/cg_context.h"

struct CGContext : std::enable_shared_from_this<CGContext> {
  /// Draws on the surface; one unit is one point, `pixelsPerPoint` pixels.
  CGContext(phone::Surface canvasSurface, double pixelsPerPoint);
  /// Draws with somebody else's Cairo context, which it keeps alive.
  explicit CGContext(cairo_t* borrowedCanvas);
  ~CGContext() { cairo_destroy(canvas); }
  CGContext(const CGContext&) = delete;
  CGContext& operator=(const CGContext&) = delete;

  struct Colors {
    CGColor fill;
    CGColor stroke;
  };

  cairo_t* canvas;
  /// None when the context is not an image's.
  phone::Surface surface;
  double scale = 1;
  Colors colors;
  std::vector<Colors> savedColors;
};
