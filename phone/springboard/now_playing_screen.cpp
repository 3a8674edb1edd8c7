#include "phone/springboard/now_playing_screen.h"

#include <algorithm>
#include <cmath>

#include "phone/uikit/type_face.h"
#include "phone/uikit/view_drawing.h"
#include "platform/foundation/literal.h"

namespace phone {

namespace {

struct LineStyle {
  FontWeight weight;
  double points;
  double opacity;
};

void drawLine(cairo_t* canvas, NSString* text, CGRect place, TextAlignment alignment,
              const LineStyle& style) {
  TypeFace::find(style.weight, style.points)->draw(canvas, text, place, alignment, {1, 1, 1, style.opacity});
}

void drawTrack(cairo_t* canvas, double left, double right, double y, double part) {
  constexpr double kThickness = 2;
  addRoundedRect(canvas, {{left, y - kThickness / 2}, {right - left, kThickness}}, kThickness / 2);
  cairo_set_source_rgba(canvas, 1, 1, 1, 0.3);
  cairo_fill(canvas);
  addRoundedRect(canvas, {{left, y - kThickness / 2}, {(right - left) * part, kThickness}}, kThickness / 2);
  cairo_set_source_rgba(canvas, 1, 1, 1, 0.95);
  cairo_fill(canvas);
}

void addTriangle(cairo_t* canvas, double x, double y, double width, double halfHeight) {
  cairo_move_to(canvas, x, y - halfHeight);
  cairo_line_to(canvas, x + width, y);
  cairo_line_to(canvas, x, y + halfHeight);
  cairo_close_path(canvas);
}

void drawTransport(cairo_t* canvas, double centre, double y) {
  constexpr double kDistance = 78;
  constexpr double kWidth = 11;
  constexpr double kHalfHeight = 8;
  for (const double direction : {-1.0, 1.0}) {
    const double x = centre + direction * kDistance;
    addTriangle(canvas, x - direction * kWidth, y, direction * kWidth, kHalfHeight);
    addTriangle(canvas, x, y, direction * kWidth, kHalfHeight);
  }
  cairo_rectangle(canvas, centre - 9, y - 11, 6, 22);
  cairo_rectangle(canvas, centre + 3, y - 11, 6, 22);
  cairo_set_source_rgba(canvas, 1, 1, 1, 0.95);
  cairo_fill(canvas);
}

void drawVolume(cairo_t* canvas, double left, double right, double y) {
  constexpr double kPart = 0.55;
  constexpr double kKnob = 8;
  drawTrack(canvas, left, right, y, kPart);
  cairo_arc(canvas, left + (right - left) * kPart, y, kKnob, 0, 2 * M_PI);
  cairo_set_source_rgba(canvas, 1, 1, 1, 1);
  cairo_fill(canvas);
}

}  // namespace

void drawNowPlayingControls(cairo_t* canvas, CGRect room) {
  const double top = room.origin.y;
  const double width = room.size.width;
  constexpr double kTimeWidth = 36;
  constexpr double kMargin = 8;
  constexpr LineStyle kTime{FontWeight::kRegular, 11, 0.75};
  cairo_save(canvas);
  cairo_new_path(canvas);
  drawLine(canvas, "1:12"_ns, {{kMargin, top}, {kTimeWidth, 16}}, TextAlignment::kLeft, kTime);
  drawLine(canvas, "-2:48"_ns, {{width - kMargin - kTimeWidth, top}, {kTimeWidth, 16}}, TextAlignment::kRight,
           kTime);
  drawTrack(canvas, kMargin + kTimeWidth, width - kMargin - kTimeWidth, top + 8, 0.3);
  drawLine(canvas, "Harbour Lights"_ns, {{kMargin, top + 20}, {width - 2 * kMargin, 20}},
           TextAlignment::kCenter, {FontWeight::kSemibold, 15, 1});
  drawLine(canvas, "The Tidewalkers \u2014 Low Water"_ns, {{kMargin, top + 40}, {width - 2 * kMargin, 17}},
           TextAlignment::kCenter, {FontWeight::kRegular, 12.5, 0.75});
  drawTransport(canvas, width / 2, top + 78);
  constexpr double kVolumeMargin = 44;
  drawVolume(canvas, kVolumeMargin, width - kVolumeMargin, top + 110);
  cairo_restore(canvas);
}

void drawNowPlayingArt(cairo_t* canvas, CGRect room) {
  const double most = room.size.height - kNowPlayingControlsHeight;
  constexpr double kSideMargin = 40;
  const double side = std::min(most, room.size.width - 2 * kSideMargin);
  if (!(side > 0)) return;
  cairo_save(canvas);
  cairo_translate(canvas, (room.size.width - side) / 2, room.origin.y + kNowPlayingControlsHeight);
  cairo_scale(canvas, side, side);
  cairo_rectangle(canvas, 0, 0, 1, 1);
  cairo_clip(canvas);
  cairo_pattern_t* const water = cairo_pattern_create_linear(0, 0, 0, 1);
  cairo_pattern_add_color_stop_rgb(water, 0, 0.98, 0.72, 0.42);
  cairo_pattern_add_color_stop_rgb(water, 0.5, 0.86, 0.36, 0.36);
  cairo_pattern_add_color_stop_rgb(water, 0.5, 0.12, 0.30, 0.42);
  cairo_pattern_add_color_stop_rgb(water, 1, 0.04, 0.12, 0.22);
  cairo_set_source(canvas, water);
  cairo_paint(canvas);
  cairo_pattern_destroy(water);
  cairo_arc(canvas, 0.5, 0.5, 0.2, M_PI, 2 * M_PI);
  cairo_set_source_rgb(canvas, 1, 0.93, 0.75);
  cairo_fill(canvas);
  // The sun's way across the water.
  for (int i = 0; i < 6; ++i) {
    const double half = 0.19 - 0.022 * i;
    cairo_rectangle(canvas, 0.5 - half, 0.53 + 0.06 * i, 2 * half, 0.018);
  }
  cairo_set_source_rgba(canvas, 1, 0.85, 0.62, 0.8);
  cairo_fill(canvas);
  cairo_restore(canvas);
}

}  // namespace phone
