#include "phone/springboard/stock_icons.h"

#include <array>
#include <cctype>
#include <cmath>
#include <functional>
#include <stdexcept>

#include "contract/files.h"
#include "phone/springboard/springboard.h"
#include "phone/uikit/type_face.h"
#include "phone/uikit/ui_image.h"
#include "phone/uikit/view_drawing.h"
#include "platform/foundation/literal.h"
#include "platform/uikit/ui_screen.h"

namespace phone {

namespace {

// Every icon is drawn one unit wide and high, without round corners.

struct Shade {
  Rgba top;
  Rgba bottom;
};

void fillSquare(cairo_t* canvas, const Shade& shade) {
  cairo_pattern_t* const pattern = cairo_pattern_create_linear(0, 0, 0, 1);
  const auto& [top, bottom] = shade;
  cairo_pattern_add_color_stop_rgb(pattern, 0, top.red, top.green, top.blue);
  cairo_pattern_add_color_stop_rgb(pattern, 1, bottom.red, bottom.green, bottom.blue);
  cairo_set_source(canvas, pattern);
  cairo_paint(canvas);
  cairo_pattern_destroy(pattern);
}

/// A text in the middle of the square's width, `size` of its height.
void drawText(cairo_t* canvas, NSString* text, FontWeight weight, double size, double top,
              const Rgba& color) {
  constexpr double kUnits = 100;
  const auto face = TypeFace::find(weight, size * kUnits);
  cairo_save(canvas);
  cairo_scale(canvas, 1 / kUnits, 1 / kUnits);
  face->draw(canvas, text, {{0, top * kUnits}, {kUnits, size * kUnits}}, TextAlignment::kCenter, color);
  cairo_restore(canvas);
}

void drawCalendar(cairo_t* canvas) {
  cairo_set_source_rgb(canvas, 1, 1, 1);
  cairo_paint(canvas);
  drawText(canvas, "Friday"_ns, FontWeight::kMedium, 0.19, 0.09, {0.99, 0.24, 0.22, 1});
  drawText(canvas, "7"_ns, FontWeight::kLight, 0.66, 0.27, {0.1, 0.1, 0.1, 1});
}

void drawMessages(cairo_t* canvas) {
  fillSquare(canvas, {{0.40, 0.94, 0.45, 1}, {0.05, 0.74, 0.17, 1}});
  cairo_set_source_rgb(canvas, 1, 1, 1);
  cairo_save(canvas);
  cairo_translate(canvas, 0.5, 0.47);
  cairo_scale(canvas, 0.35, 0.29);
  cairo_arc(canvas, 0, 0, 1, 0, 2 * M_PI);
  cairo_restore(canvas);
  cairo_fill(canvas);
  cairo_move_to(canvas, 0.26, 0.62);
  cairo_curve_to(canvas, 0.29, 0.72, 0.24, 0.78, 0.19, 0.80);
  cairo_curve_to(canvas, 0.31, 0.81, 0.39, 0.78, 0.44, 0.72);
  cairo_fill(canvas);
}

void drawMail(cairo_t* canvas) {
  fillSquare(canvas, {{0.11, 0.60, 0.98, 1}, {0.10, 0.82, 0.99, 1}});
  addRoundedRect(canvas, {{0.15, 0.27}, {0.70, 0.46}}, 0.05);
  cairo_set_source_rgb(canvas, 1, 1, 1);
  cairo_fill(canvas);
  cairo_move_to(canvas, 0.17, 0.30);
  cairo_line_to(canvas, 0.5, 0.56);
  cairo_line_to(canvas, 0.83, 0.30);
  cairo_set_source_rgb(canvas, 0.25, 0.65, 0.95);
  cairo_set_line_width(canvas, 0.035);
  cairo_stroke(canvas);
}

void drawInitial(cairo_t* canvas, const std::string& bundleID) {
  constexpr std::array<Shade, 5> kShades = {{{{0.98, 0.55, 0.25, 1}, {0.93, 0.33, 0.20, 1}},
                                             {{0.45, 0.55, 0.95, 1}, {0.29, 0.33, 0.80, 1}},
                                             {{0.72, 0.45, 0.90, 1}, {0.51, 0.27, 0.74, 1}},
                                             {{0.30, 0.80, 0.78, 1}, {0.10, 0.56, 0.62, 1}},
                                             {{0.96, 0.45, 0.60, 1}, {0.82, 0.22, 0.44, 1}}}};
  unsigned sum = 0;
  for (const char character : bundleID) sum = 31 * sum + static_cast<unsigned char>(character);
  fillSquare(canvas, kShades[sum % kShades.size()]);
  const std::string name = bundleID.substr(bundleID.rfind('.') + 1);
  if (name.empty()) return;
  const char initial = static_cast<char>(std::toupper(static_cast<unsigned char>(name.front())));
  drawText(canvas, NSString::stringWithUTF8String(std::string(1, initial).c_str()), FontWeight::kSemibold,
           0.6, 0.2, {1, 1, 1, 1});
}

void drawIcon(cairo_t* canvas, const std::string& bundleID) {
  if (bundleID == "com.apple.mobilecal") return drawCalendar(canvas);
  if (bundleID == "com.apple.MobileSMS") return drawMessages(canvas);
  if (bundleID == "com.apple.mobilemail") return drawMail(canvas);
  drawInitial(canvas, bundleID);
}

/// The icon in so many pixels a side; `cornerRadius` is a part of the side.
Surface iconPicture(const std::string& bundleID, int side, double cornerRadius) {
  Surface picture = makeSurface(side, side);
  if (picture == nullptr) throw std::runtime_error("no memory for the icon of " + bundleID);
  cairo_t* const canvas = cairo_create(picture.get());
  cairo_scale(canvas, side, side);
  addRoundedRect(canvas, {{0, 0}, {1, 1}}, cornerRadius);
  cairo_clip(canvas);
  drawIcon(canvas, bundleID);
  cairo_destroy(canvas);
  return picture;
}

}  // namespace

UIImage* notificationIcon(const std::string& bundleID) {
  auto& icon = springBoardState().notificationIcons[bundleID];
  if (!icon) {
    constexpr double kPoints = 20;
    constexpr double kCornerRadius = 0.225;
    const double scale = UIScreen::mainScreen()->scale();
    const int side = static_cast<int>(std::round(kPoints * scale));
    icon = makeImage(iconPicture(bundleID, side, kCornerRadius), scale);
  }
  return icon.get();
}

void installStockIcons(const std::filesystem::path& root) {
  const std::filesystem::path file = root / std::string_view(contract::kCalendarAppIcon).substr(1);
  std::error_code error;
  std::filesystem::create_directories(file.parent_path(), error);
  if (error) throw std::runtime_error(file.parent_path().string() + ": " + error.message());
  // Square: who shows it rounds its corners.
  constexpr int kPixels = 58;
  writePng(iconPicture("com.apple.mobilecal", kPixels, 0), file);
}

}  // namespace phone
