// Picture objects for the phone's own code.
#pragma once

#include "phone/uikit/surface.h"
#include "platform/objc/owned.h"
#include "platform/uikit/ui_image.h"

namespace phone {

/// A new picture of the surface's pixels, `scale` pixels a point.
objc::Owned<UIImage> makeImage(Surface surface, double scale);

/// The picture's pixels; none for no picture.
Surface surfaceOf(UIImage* image);

/// Draws the surface's pixels into the rectangle; the canvas keeps its path.
void drawSurface(cairo_t* canvas, const Surface& surface, CGRect rect);

}  // namespace phone
