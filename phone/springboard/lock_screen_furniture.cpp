#include "phone/springboard/lock_screen_furniture.h"

#include <cmath>

#include "phone/uikit/type_face.h"
#include "phone/uikit/view_drawing.h"
#include "platform/foundation/literal.h"

namespace phone {

namespace {

constexpr double kBarHeight = 20;
constexpr Rgba kWhite{1, 1, 1, 1};

void drawSignal(cairo_t* canvas, double left) {
  constexpr int kDots = 5;
  constexpr int kFilled = 4;
  constexpr double kPitch = 6.6;
  constexpr double kRadius = 2.6;
  for (int i = 0; i < kDots; ++i) {
    const bool isFilled = i < kFilled;
    constexpr double kStroke = 0.6;
    cairo_arc(canvas, left + kRadius + i * kPitch, kBarHeight / 2, isFilled ? kRadius : kRadius - kStroke / 2,
              0, 2 * M_PI);
    cairo_set_line_width(canvas, kStroke);
    isFilled ? cairo_fill(canvas) : cairo_stroke(canvas);
  }
}

void drawWirelessNetwork(cairo_t* canvas, double centre) {
  constexpr double kBottom = 14.2;
  constexpr double kFrom = -0.75 * M_PI;
  constexpr double kTo = -0.25 * M_PI;
  cairo_move_to(canvas, centre, kBottom);
  cairo_arc(canvas, centre, kBottom, 3, kFrom, kTo);
  cairo_close_path(canvas);
  cairo_fill(canvas);
  cairo_set_line_width(canvas, 1.7);
  for (const double radius : {5.2, 8.2}) {
    cairo_arc(canvas, centre, kBottom, radius, kFrom, kTo);
    cairo_stroke(canvas);
  }
}

void drawPadlock(cairo_t* canvas, double centre) {
  addRoundedRect(canvas, {{centre - 3.6, 9}, {7.2, 5.8}}, 0.9);
  cairo_fill(canvas);
  cairo_set_line_width(canvas, 1.2);
  cairo_arc(canvas, centre, 7.6, 2.2, M_PI, 2 * M_PI);
  cairo_line_to(canvas, centre + 2.2, 9.4);
  cairo_move_to(canvas, centre - 2.2, 7.6);
  cairo_line_to(canvas, centre - 2.2, 9.4);
  cairo_stroke(canvas);
}

void drawBattery(cairo_t* canvas, double right) {
  constexpr double kLeftOfRight = 27.5;
  const double left = right - kLeftOfRight;
  cairo_set_line_width(canvas, 0.7);
  addRoundedRect(canvas, {{left, 5.5}, {24.5, 9.5}}, 1.6);
  cairo_stroke(canvas);
  constexpr double kCharge = 0.84;
  addRoundedRect(canvas, {{left + 1.3, 6.8}, {21.9 * kCharge, 6.9}}, 0.7);
  cairo_fill(canvas);
  addRoundedRect(canvas, {{left + 25.4, 8.6}, {1.5, 3.3}}, 0.7);
  cairo_fill(canvas);
}

void drawGrabber(cairo_t* canvas, double centre, double top) {
  constexpr double kWidth = 36;
  constexpr double kHeight = 5;
  addRoundedRect(canvas, {{centre - kWidth / 2, top}, {kWidth, kHeight}}, kHeight / 2);
  cairo_fill(canvas);
}

void drawCamera(cairo_t* canvas, double centreX, double centreY) {
  cairo_push_group(canvas);
  addRoundedRect(canvas, {{centreX - 11, centreY - 6}, {22, 15}}, 2.4);
  addRoundedRect(canvas, {{centreX - 5, centreY - 8.6}, {10, 6}}, 2);
  cairo_set_source_rgba(canvas, 1, 1, 1, 1);
  cairo_fill(canvas);
  cairo_set_operator(canvas, CAIRO_OPERATOR_DEST_OUT);
  cairo_set_line_width(canvas, 1.2);
  cairo_arc(canvas, centreX, centreY + 1.3, 4.6, 0, 2 * M_PI);
  cairo_stroke(canvas);
  cairo_pop_group_to_source(canvas);
  constexpr double kOpacity = 0.55;
  cairo_paint_with_alpha(canvas, kOpacity);
}

}  // namespace

void drawStatusBar(cairo_t* canvas, double width) {
  cairo_save(canvas);
  cairo_new_path(canvas);
  cairo_set_source_rgba(canvas, 1, 1, 1, 1);
  constexpr double kMargin = 6.5;
  constexpr double kPoints = 12;
  drawSignal(canvas, kMargin);
  const auto face = TypeFace::find(FontWeight::kRegular, kPoints);
  NSString* const carrier = "Carrier"_ns;
  constexpr double kCarrierLeft = 44;
  const double carrierWidth = face->measure(carrier).width;
  face->draw(canvas, carrier, {{kCarrierLeft, 0}, {carrierWidth, kBarHeight}}, TextAlignment::kLeft, kWhite);
  constexpr double kNetworkGap = 12;
  drawWirelessNetwork(canvas, kCarrierLeft + carrierWidth + kNetworkGap);
  drawPadlock(canvas, width / 2);
  constexpr double kChargeRight = 37;
  constexpr double kChargeWidth = 40;
  face->draw(canvas, "84%"_ns, {{width - kChargeRight - kChargeWidth, 0}, {kChargeWidth, kBarHeight}},
             TextAlignment::kRight, kWhite);
  cairo_set_source_rgba(canvas, 1, 1, 1, 1);
  drawBattery(canvas, width - kMargin + 1);
  cairo_restore(canvas);
}

void drawGrabbers(cairo_t* canvas, CGSize screen) {
  cairo_save(canvas);
  cairo_new_path(canvas);
  constexpr double kOpacity = 0.35;
  constexpr double kTop = 23;
  constexpr double kBottom = 11;
  cairo_set_source_rgba(canvas, 1, 1, 1, kOpacity);
  drawGrabber(canvas, screen.width / 2, kTop);
  drawGrabber(canvas, screen.width / 2, screen.height - kBottom);
  constexpr double kCameraRight = 27;
  constexpr double kCameraBottom = 20;
  drawCamera(canvas, screen.width - kCameraRight, screen.height - kCameraBottom);
  cairo_restore(canvas);
}

}  // namespace phone
