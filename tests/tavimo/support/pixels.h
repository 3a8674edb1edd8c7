// The pixels of an image, for tests.
#pragma once

#include <cairo.h>
#include <cstddef>
#include <cstdint>

#include "phone/uikit/ui_image.h"

namespace phone {

/// The pixel as 0xAARRGGBB.
inline std::uint32_t pixelAt(UIImage* image, int x, int y) {
  cairo_surface_t* const surface = surfaceOf(image).get();
  cairo_surface_flush(surface);
  const unsigned char* const line = cairo_image_surface_get_data(surface) +
                                    static_cast<std::ptrdiff_t>(y) * cairo_image_surface_get_stride(surface);
  return reinterpret_cast<const std::uint32_t*>(line)[x];
}

}  // namespace phone
