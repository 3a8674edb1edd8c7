#include "phone/uikit/surface.h"

#include <new>
#include <stdexcept>

#include "phone/foundation/output_file.h"

namespace phone {

namespace {

/// Cairo's own frames let no exception through.
cairo_status_t appendBytes(void* target, const unsigned char* part, unsigned length) {
  try {
    static_cast<std::string*>(target)->append(reinterpret_cast<const char*>(part), length);
    return CAIRO_STATUS_SUCCESS;
  } catch (const std::bad_alloc&) {
    return CAIRO_STATUS_NO_MEMORY;
  }
}

}  // namespace

Surface adoptSurface(cairo_surface_t* surface) { return Surface(surface, &cairo_surface_destroy); }

bool isUsablePixelSize(double width, double height) {
  constexpr double kMaxPixelsAlongASide = 32767;  // Cairo's own limit
  constexpr double kMaxPixels = 50e6;
  // Written so that a size that is not a number fails.
  return width >= 1 && height >= 1 && width <= kMaxPixelsAlongASide && height <= kMaxPixelsAlongASide &&
         width * height <= kMaxPixels;
}

Surface makeSurface(double width, double height) {
  if (!isUsablePixelSize(width, height)) return nullptr;
  Surface surface = adoptSurface(
      cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(width), static_cast<int>(height)));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) return nullptr;
  return surface;
}

Surface copySurface(const Surface& original) {
  Surface copy = makeSurface(cairo_image_surface_get_width(original.get()),
                             cairo_image_surface_get_height(original.get()));
  if (copy == nullptr) return nullptr;
  cairo_t* const canvas = cairo_create(copy.get());
  cairo_set_operator(canvas, CAIRO_OPERATOR_SOURCE);
  cairo_set_source_surface(canvas, original.get(), 0, 0);
  cairo_paint(canvas);
  cairo_destroy(canvas);
  return copy;
}

std::string pngOf(const Surface& surface) {
  if (surface == nullptr) throw std::runtime_error("there is no memory for the picture");
  std::string bytes;
  if (cairo_surface_write_to_png_stream(surface.get(), appendBytes, &bytes) != CAIRO_STATUS_SUCCESS) {
    throw std::runtime_error("there is no memory for the picture");
  }
  return bytes;
}

void writePng(const Surface& surface, const std::filesystem::path& path) {
  writeOutputFile(path, pngOf(surface));
}

}  // namespace phone
