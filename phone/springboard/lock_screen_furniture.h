// What the lock screen always shows besides its texts: the status bar, and the grabbers that hint at what can
// be pulled in from the edges.
#pragma once

#include <cairo.h>

#include "platform/coregraphics/cg_geometry.h"

namespace phone {

/// Signal, carrier and wireless network at the left, the padlock in the middle, the battery at the right;
/// over the whole width in points.
void drawStatusBar(cairo_t* canvas, double width);

/// The grabbers at the top and the bottom edge of a screen of that size in points, and the camera's.
void drawGrabbers(cairo_t* canvas, CGSize screen);

}  // namespace phone
