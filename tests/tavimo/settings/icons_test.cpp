// The icon file's rules, and the pixels of the small images that the plug-in draws.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>

#include "phone/objc/class_definition.h"
#include "phone/objc/hooking.h"
#include "phone/uikit/ui_application.h"
#include "phone/uikit/ui_view.h"
#include "platform/uikit/ui_color.h"
#include "platform/uikit/ui_screen.h"
#include "platform/uikit/ui_window.h"
#include "tests/tavimo/support/lock_screen.h"
#include "tests/tavimo/support/pixels.h"

namespace phone {
namespace {

constexpr const char* kCalendarIcon = "/Applications/MobileCal.app/icon-about@2x.png";
constexpr std::uint32_t kRed = 0xFFFF0000;
constexpr std::uint32_t kClear = 0;

Surface redSquare(int side) {
  Surface surface = makeSurface(side, side);
  cairo_t* const canvas = cairo_create(surface.get());
  cairo_set_source_rgb(canvas, 1, 0, 0);
  cairo_paint(canvas);
  cairo_destroy(canvas);
  return surface;
}

/// Checks every pixel that `expected` names a colour for, by the pixel's middle; others are edges.
void expectPixels(UIImage* image, int side,
                  const std::function<std::optional<std::uint32_t>(double, double)>& expected) {
  ASSERT_EQ(cairo_image_surface_get_width(surfaceOf(image).get()), side);
  ASSERT_EQ(cairo_image_surface_get_height(surfaceOf(image).get()), side);
  int checked = 0;
  for (int y = 0; y < side; ++y) {
    for (int x = 0; x < side; ++x) {
      const auto color = expected(x + 0.5, y + 0.5);
      if (!color) continue;
      ++checked;
      ASSERT_EQ(pixelAt(image, x, y), *color) << x << ", " << y;
    }
  }
  EXPECT_GT(checked, side * side * 3 / 4);
}

objc::Owned<UIImage> rounded(UIImage* image, double radius) {
  auto* const copy = pluginSymbol<UIImage*(UIImage*, double)>("roundedRectImageFromImage");
  return objc::Owned<UIImage>::adopt(copy(image, radius));
}

TEST(Images, DotIsADiscWithABlackRing) {
  const LockScreen phone;
  auto* const draw = pluginSymbol<UIImage*(UIColor*, double)>("drawColoredDot");
  for (const double diameter : {30.0, 50.0}) {
    SCOPED_TRACE(diameter);
    const auto dot = objc::Owned<UIImage>::adopt(draw(UIColor::redColor(), diameter));
    EXPECT_EQ(dot->size().width, 80);
    EXPECT_EQ(dot->scale(), 1);
    const double radius = diameter / 2;
    expectPixels(dot.get(), 80, [&](double x, double y) -> std::optional<std::uint32_t> {
      const double distance = std::hypot(x - 40, y - 40);
      if (distance < radius - 0.8) return kRed;
      if (distance > radius + 1.8) return kClear;
      return std::nullopt;
    });
    // Straight above the middle the ring fills a row of pixels.
    const std::uint32_t ring = pixelAt(dot.get(), 40, static_cast<int>(40 - radius - 1));
    EXPECT_GE(ring >> 24, 0xF0U);
    EXPECT_LT(ring & 0xFFFFFF, 0x200000U);
  }
}

TEST(Images, RoundedCopyIsCutWithTheSquareOfTheRadius) {
  const LockScreen phone;
  const auto image = makeImage(redSquare(58), 2);
  const auto copy = rounded(image.get(), 3);
  EXPECT_NE(copy.get(), image.get());
  EXPECT_EQ(copy->size().width, 29);
  EXPECT_EQ(copy->size().height, 29);
  EXPECT_EQ(copy->scale(), 2);
  constexpr double kRadius = 9 * 2;
  expectPixels(copy.get(), 58, [](double x, double y) -> std::optional<std::uint32_t> {
    const double nearX = std::min(x, 58 - x);
    const double nearY = std::min(y, 58 - y);
    const double distance =
        nearX < kRadius && nearY < kRadius ? std::hypot(kRadius - nearX, kRadius - nearY) : 0;
    if (distance < kRadius - 1) return kRed;
    if (distance > kRadius + 1) return kClear;
    return std::nullopt;
  });
}

CGFloat anotherScale = 3;
CGFloat scaleOfAnother(UIScreen*, SEL) { return anotherScale; }
UIScreen* anotherScreen(UIWindow*, SEL) {
  static UIScreen* const screen = objc::make<UIScreen, "AnotherScreen">().relinquish();
  return screen;
}

TEST(Images, RoundedCopyHasTheScaleOfTheWindowsScreen) {
  const LockScreen phone;
  registerClass(
      {.name = "AnotherScreen", .superclass = "UIScreen", .methods = {method("scale", scaleOfAnother)}});
  startApplication("UIApplication");
  const auto image = makeImage(redSquare(58), 2);
  objc::send<"makeKeyAndVisible">(makeView<UIWindow>().get());
  EXPECT_EQ(rounded(image.get(), 3)->scale(), UIScreen::mainScreen()->scale());
  objc::Displaced<UIScreen*(UIWindow*, SEL)> displaced;
  hookMethod(objc::classOf<UIWindow>(), "screen", anotherScreen, displaced);
  EXPECT_EQ(rounded(image.get(), 3)->scale(), 3);
  for (const CGFloat none : {CGFloat{0}, CGFloat{-1}, std::numeric_limits<CGFloat>::quiet_NaN()}) {
    anotherScale = none;
    EXPECT_EQ(rounded(image.get(), 3)->scale(), 1) << none;
  }
}

TEST(Images, RadiusOfZeroGivesTheImageAndNoImageGivesNone) {
  const LockScreen phone;
  const auto image = makeImage(redSquare(10), 1);
  auto* const copy = pluginSymbol<UIImage*(UIImage*, double)>("roundedRectImageFromImage");
  EXPECT_EQ(copy(image.get(), 0), image.get());
  EXPECT_EQ(copy(nullptr, 0), nullptr);
  EXPECT_EQ(copy(nullptr, 3), nullptr);
  // A corner larger than the image.
  EXPECT_EQ(rounded(image.get(), 5)->size().width, 10);
}

class Icons : public testing::Test {
 protected:
  Icons() {
    std::filesystem::create_directories(phone_.fileAt(kCalendarIcon).parent_path());
    writePng(redSquare(58), phone_.fileAt(kCalendarIcon));
    writePng(redSquare(20), phone_.preferences("own.png"));
  }

  void load(const std::string& iconFile) {
    phone_.settings(iconFile.empty() ? "" : "<key>iconFile</key>" + iconFile);
    phone_.load();
  }
  void loadPath(const std::string& path) { load("<string>" + path + "</string>"); }
  static UIImage* icon() { return exported<UIImage*>("icon"); }
  static std::string iconFile() { return utf8(exported<NSString*>("iconFile")); }
  static std::string own() { return "/var/mobile/Library/Preferences/own.png"; }

  LockScreen phone_;
};

TEST_F(Icons, CalendarAppsIconIsRoundedAndOthersAreNot) {
  for (const std::string& value : {std::string(), std::string("<integer>7</integer>"),
                                   "<string>" + std::string(kCalendarIcon) + "</string>"}) {
    SCOPED_TRACE(value);
    load(value);
    EXPECT_EQ(iconFile(), kCalendarIcon);
    ASSERT_NE(icon(), nullptr);
    EXPECT_EQ(icon()->size().width, 29);
    EXPECT_EQ(pixelAt(icon(), 0, 0), kClear);
    EXPECT_EQ(pixelAt(icon(), 29, 29), kRed);
  }
  loadPath(own());
  EXPECT_EQ(iconFile(), own());
  ASSERT_NE(icon(), nullptr);
  EXPECT_EQ(icon()->size().width, 20);
  EXPECT_EQ(pixelAt(icon(), 0, 0), kRed);
}

TEST_F(Icons, DotsAndNoIconKeepTheImageOfTheLoadBefore) {
  loadPath(own());
  UIImage* const kept = icon();
  for (const char* special : {"NONE", "DOT", "DOT_LARGE"}) {
    loadPath(special);
    EXPECT_EQ(iconFile(), special);
    EXPECT_EQ(icon(), kept);
  }
  loadPath("dot");
  EXPECT_EQ(icon(), nullptr);
}

TEST_F(Icons, FilesThatAreNoImagesGiveNone) {
  // The size of a picture stands in its first bytes: 60,000 by 60,000 pixels.
  std::string huge = bytesOf(phone_.preferences("own.png"));
  huge.replace(16, 8, std::string("\x00\x00\xEA\x60\x00\x00\xEA\x60", 8));
  phone_.writePreferences("huge.png", huge);
  phone_.writePreferences("broken.png", bytesOf(phone_.preferences("own.png")).substr(0, 40));
  phone_.writePreferences("text.png", "no picture");
  for (const char* name : {"huge.png", "broken.png", "text.png", "missing.png", "", "../Preferences"}) {
    SCOPED_TRACE(name);
    loadPath(own());
    ASSERT_NE(icon(), nullptr);
    loadPath("/var/mobile/Library/Preferences/" + std::string(name));
    EXPECT_EQ(icon(), nullptr);
  }
  loadPath("");
  EXPECT_EQ(iconFile(), "");
  std::filesystem::remove(phone_.fileAt(kCalendarIcon));
  load("");
  EXPECT_EQ(icon(), nullptr);
  EXPECT_EQ(iconFile(), kCalendarIcon);
}

}  // namespace
}  // namespace phone
