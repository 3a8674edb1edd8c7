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

// The canvas below is one unit wide and as tall as the screen's proportions make it. Where the list lies, the
// picture is dark enough for grey texts on it.

void drawSky(cairo_t* canvas, double height) {
  cairo_rectangle(canvas, 0, 0, 1, height);
  fillWith(canvas, cairo_pattern_create_linear(0, 0, 0.2, height),
           {{0, 0.020, 0.035, 0.110},
            {0.30, 0.050, 0.075, 0.215},
            {0.60, 0.095, 0.105, 0.290},
            {0.80, 0.180, 0.135, 0.330},
            {0.90, 0.470, 0.250, 0.390},
            {1, 0.800, 0.450, 0.380}});
  cairo_rectangle(canvas, 0, 0, 1, height);
  const double glowY = height * 0.905;
  fillWith(canvas, cairo_pattern_create_radial(0.66, glowY, 0.02, 0.66, glowY, 0.36),
           {{0, 1, 0.70, 0.45, 0.80}, {0.3, 0.92, 0.46, 0.40, 0.30}, {1, 0.75, 0.33, 0.40, 0}});
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
  addHills(canvas, height, 0.888, 0.028, 0.6);
  fillWith(canvas, cairo_pattern_create_linear(0, height * 0.85, 0, height),
           {{0, 0.235, 0.150, 0.310}, {1, 0.420, 0.240, 0.360}});
  addHills(canvas, height, 0.928, 0.022, 2.6);
  fillWith(canvas, cairo_pattern_create_linear(0, height * 0.90, 0, height),
           {{0, 0.140, 0.100, 0.230}, {1, 0.240, 0.150, 0.280}});
  addHills(canvas, height, 0.964, 0.016, 4.4);
  fillWith(canvas, cairo_pattern_create_linear(0, height * 0.94, 0, height),
           {{0, 0.060, 0.045, 0.120}, {1, 0.035, 0.025, 0.080}});
}

void drawStars(cairo_t* canvas, double height) {
  // Places without a pattern, but the same on every phone.
  unsigned seed = 20140307;
  const auto next = [&seed] {
    seed = seed * 1664525U + 1013904223U;
    return static_cast<double>(seed >> 8) / static_cast<double>(1U << 24);
  };
  constexpr int kCount = 110;
  for (int i = 0; i < kCount; ++i) {
    const double x = next();
    const double depth = next();
    const double size = 0.0008 + 0.0014 * next();
    cairo_set_source_rgba(canvas, 1, 1, 1, (1 - depth) * (1 - depth) * (0.3 + 0.7 * next()));
    cairo_arc(canvas, x, height * 0.5 * depth, size, 0, 2 * M_PI);
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
