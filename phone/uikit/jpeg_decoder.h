// Decoding JPEG pictures with libjpeg.
#pragma once

#include <span>

#include "phone/uikit/surface.h"

namespace phone {

/// None when the bytes are no JPEG picture, broken, or have more pixels than a surface may have.
Surface decodeJpeg(std::span<const unsigned char> bytes);

}  // namespace phone
