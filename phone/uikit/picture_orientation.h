// Which way up a camera held a picture: JPEG files may say so, and a picture is shown accordingly.
#pragma once

#include <span>

#include "phone/uikit/surface.h"

namespace phone {

/// The orientation that the JPEG file states, 1 to 8; 1, upright, when it states none.
int statedOrientation(std::span<const unsigned char> jpeg);

/// The picture turned and mirrored so that it stands upright: itself for orientation 1. None when there is no
/// memory for it.
Surface uprightPicture(const Surface& surface, int orientation);

}  // namespace phone
