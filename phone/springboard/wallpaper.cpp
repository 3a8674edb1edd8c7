#include "phone/springboard/wallpaper.h"

#include <algorithm>
#include <cmath>

namespace phone {

namespace {

struct Stop {
  double offset;
  double red;
  double green;
  double blue;
  double alpha = 1;
};

template <std::size_t Count>
void fillWith(cairo_t* canvas, cairo_pattern_t* pattern, const Stop (&stops)[Count]) {
  for (const auto& [offset, red, green, blue, alpha] : stops) {
    cairo_pattern_add_color_stop_rgba(pattern, offset, red, green, blue, alpha);
  }
  cairo_set_source(canvas, pattern);
  cairo_fill(canvas);
  cairo_pattern_destroy(pattern);
}

// The canvas below is one unit wide and as tall as the screen's proportions make it.

void drawSky(cairo_t* canvas, double height) {
  cairo_rectangle(canvas, 0, 0, 1, height);
  fillWith(canvas, cairo_pattern_create_linear(0, 0, 0.25, height),
           {{0, 0.07, 0.10, 0.30},
            {0.36, 0.25, 0.22, 0.50},
            {0.58, 0.72, 0.38, 0.50},
            {0.74, 0.96, 0.62, 0.45},
            {1, 0.99, 0.80, 0.55}});
  cairo_rectangle(canvas, 0, 0, 1, height);
  const double sunY = height * 0.66;
  fillWith(canvas, cairo_pattern_create_radial(0.68, sunY, 0.02, 0.68, sunY, 0.62),
           {{0, 1, 0.93, 0.72, 0.95}, {0.1, 1, 0.86, 0.60, 0.55}, {1, 1, 0.70, 0.45, 0}});
}

/// A range of hills from edge to edge: three waves laid over one another.
void addHills(cairo_t* canvas, double height, double level, double roughness, double phase) {
  cairo_move_to(canvas, 0, height);
  constexpr double kStep = 0.005;
  for (double x = 0; x <= 1 + kStep; x += kStep) {
    const double wave = std::sin(x * 4.1 + phase) + 0.45 * std::sin(x * 9.7 + 2.3 * phase) +
                        0.16 * std::sin(x * 27 + 5.1 * phase);
    cairo_line_to(canvas, x, height * level - roughness * wave);
  }
  cairo_line_to(canvas, 1, height);
  cairo_close_path(canvas);
}

void drawHills(cairo_t* canvas, double height) {
  addHills(canvas, height, 0.71, 0.050, 0.6);
  fillWith(canvas, cairo_pattern_create_linear(0, height * 0.64, 0, height),
           {{0, 0.56, 0.33, 0.50}, {1, 0.80, 0.50, 0.50}});
  addHills(canvas, height, 0.79, 0.042, 2.6);
  fillWith(canvas, cairo_pattern_create_linear(0, height * 0.72, 0, height),
           {{0, 0.34, 0.22, 0.43}, {1, 0.55, 0.33, 0.45}});
  addHills(canvas, height, 0.88, 0.034, 4.4);
  fillWith(canvas, cairo_pattern_create_linear(0, height * 0.83, 0, height),
           {{0, 0.16, 0.12, 0.29}, {1, 0.10, 0.07, 0.20}});
}

void drawStars(cairo_t* canvas, double height) {
  // Places without a pattern, but the same on every phone.
  unsigned seed = 20140307;
  const auto next = [&seed] {
    seed = seed * 1664525U + 1013904223U;
    return static_cast<double>(seed >> 8) / static_cast<double>(1U << 24);
  };
  constexpr int kCount = 70;
  for (int i = 0; i < kCount; ++i) {
    const double x = next();
    const double depth = next();
    const double size = 0.0008 + 0.0014 * next();
    cairo_set_source_rgba(canvas, 1, 1, 1, (1 - depth) * (0.25 + 0.6 * next()));
    cairo_arc(canvas, x, height * 0.45 * depth, size, 0, 2 * M_PI);
    cairo_fill(canvas);
  }
}

}  // namespace

Surface ownWallpaper(int width, int height) {
  Surface picture = makeSurface(width, height);
  if (picture == nullptr) return nullptr;
  cairo_t* const canvas = cairo_create(picture.get());
  cairo_scale(canvas, width, width);
  const double heightInWidths = static_cast<double>(height) / width;
  drawSky(canvas, heightInWidths);
  drawStars(canvas, heightInWidths);
  drawHills(canvas, heightInWidths);
  cairo_destroy(canvas);
  return picture;
}

Surface fillingCopy(const Surface& picture, int width, int height) {
  Surface copy = makeSurface(width, height);
  if (copy == nullptr) return nullptr;
  const double pictureWidth = cairo_image_surface_get_width(picture.get());
  const double pictureHeight = cairo_image_surface_get_height(picture.get());
  const double factor = std::max(width / pictureWidth, height / pictureHeight);
  cairo_t* const canvas = cairo_create(copy.get());
  cairo_translate(canvas, (width - pictureWidth * factor) / 2, (height - pictureHeight * factor) / 2);
  cairo_scale(canvas, factor, factor);
  cairo_set_source_surface(canvas, picture.get(), 0, 0);
  cairo_pattern_set_filter(cairo_get_source(canvas), CAIRO_FILTER_GOOD);
  cairo_paint(canvas);
  cairo_destroy(canvas);
  return copy;
}

}  // namespace phone
