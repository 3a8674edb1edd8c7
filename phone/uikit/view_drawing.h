// Drawing a view hierarchy.
#pragma once

#include "phone/uikit/surface.h"
#include "platform/uikit/ui_view.h"

namespace phone {

/// Lays out and draws the view and all below it, its frame's corner at the canvas's origin. One unit of the
/// canvas is one point.
void drawView(cairo_t* canvas, UIView* view);

/// The view in a new picture of its size, `scale` pixels a point. None when that is no usable size.
Surface pictureOfView(UIView* view, double scale);

/// Adds a rectangle with round corners to the canvas's path.
void addRoundedRect(cairo_t* canvas, CGRect rect, double radius);

}  // namespace phone
