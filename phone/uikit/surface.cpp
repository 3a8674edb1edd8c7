#include "phone/uikit/surface.h"

#include <stdexcept>
#include <system_error>

namespace phone {

Surface adoptSurface(cairo_surface_t* surface) { return Surface(surface, &cairo_surface_destroy); }

bool isUsablePixelSize(double width, double height) {
  constexpr double kMostPixelsAlongASide = 32767;  // Cairo's own limit
  constexpr double kMostPixels = 50e6;
  // Written so that a size that is not a number fails.
  return width >= 1 && height >= 1 && width <= kMostPixelsAlongASide && height <= kMostPixelsAlongASide &&
         width * height <= kMostPixels;
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

void writePng(const Surface& surface, const std::filesystem::path& path) {
  std::filesystem::path unfinished = path;
  unfinished += ".unfinished";
  const cairo_status_t status = cairo_surface_write_to_png(surface.get(), unfinished.c_str());
  std::error_code failure;
  if (status == CAIRO_STATUS_SUCCESS) std::filesystem::rename(unfinished, path, failure);
  if (status == CAIRO_STATUS_SUCCESS && !failure) return;
  const std::string reason = failure ? failure.message() : cairo_status_to_string(status);
  std::filesystem::remove(unfinished, failure);
  throw std::runtime_error("cannot write the picture " + path.string() + ": " + reason);
}

}  // namespace phone
