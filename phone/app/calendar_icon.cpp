#include "phone/app/calendar_icon.h"

#include <cairo.h>
#include <memory>
#include <stdexcept>

namespace phone {

namespace {

constexpr int kSide = 58;
constexpr double kHeader = 17;

void drawDays(cairo_t* canvas) {
  constexpr double kCell = 7;
  constexpr double kGap = 3;
  constexpr double kLeft = 5.5;
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 5; ++column) {
      const bool today = row == 1 && column == 2;
      cairo_set_source_rgb(canvas, today ? 0.85 : 0.75, today ? 0.2 : 0.77, today ? 0.2 : 0.8);
      cairo_rectangle(canvas, kLeft + column * (kCell + kGap), kHeader + 6 + row * (kCell + kGap + 1), kCell,
                      kCell);
      cairo_fill(canvas);
    }
  }
}

}  // namespace

void drawCalendarIcon(const std::filesystem::path& file) {
  const std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)> surface(
      cairo_image_surface_create(CAIRO_FORMAT_RGB24, kSide, kSide), cairo_surface_destroy);
  const std::unique_ptr<cairo_t, decltype(&cairo_destroy)> canvas(cairo_create(surface.get()), cairo_destroy);
  cairo_set_source_rgb(canvas.get(), 1, 1, 1);
  cairo_paint(canvas.get());
  cairo_set_source_rgb(canvas.get(), 0.85, 0.2, 0.2);
  cairo_rectangle(canvas.get(), 0, 0, kSide, kHeader);
  cairo_fill(canvas.get());
  drawDays(canvas.get());
  const cairo_status_t status = cairo_surface_write_to_png(surface.get(), file.c_str());
  if (status != CAIRO_STATUS_SUCCESS) {
    throw std::runtime_error(file.string() + ": cannot be written: " + cairo_status_to_string(status));
  }
}

}  // namespace phone
