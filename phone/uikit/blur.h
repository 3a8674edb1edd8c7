// The blurred and darkened wallpaper that lies under the lock screen's list.
#pragma once

#include "phone/uikit/surface.h"

namespace phone {

/// A blurred copy: every pixel becomes the mean of those around it, weighted like a bell of about `radius`
/// pixels. None when there is no memory for it.
Surface blurredCopy(const Surface& original, int radius);

/// Lays black over the picture; 0 leaves it, 1 makes it black.
void darken(const Surface& surface, double strength);

}  // namespace phone
