// The pictures that lie behind the lock screen.
#pragma once

#include "phone/uikit/surface.h"

namespace phone {

/// The wallpaper that the phone comes with, of that size in pixels. None when there is no memory for it.
Surface ownWallpaper(int width, int height);

/// The picture scaled to fill that size in pixels, its proportions kept and what is too much cut off evenly.
Surface fillingCopy(const Surface& picture, int width, int height);

}  // namespace phone
