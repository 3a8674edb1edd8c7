// What the lock screen looks like: sizes in pixels, what lies behind it, and the icons that a phone comes
// with.
#include <algorithm>
#include <cstdint>
#include <fstream>
#include <gtest/gtest.h>
#include <stdexcept>
#include <sys/stat.h>

#include "phone/springboard/home_screen.h"
#include "phone/springboard/stock_icons.h"
#include "phone/uikit/image_file.h"
#include "tests/foundation/temporary_folder.h"
#include "tests/springboard/phones.h"

namespace phone {
namespace {

std::uint32_t pixelAt(const Surface& picture, int x, int y) {
  const std::ptrdiff_t stride = cairo_image_surface_get_stride(picture.get());
  const auto* const row = cairo_image_surface_get_data(picture.get()) + y * stride;
  return reinterpret_cast<const std::uint32_t*>(row)[x] & 0xFFFFFFU;
}

/// Writes a picture of one red and one blue half, side by side.
std::filesystem::path writeTwoColors(const std::filesystem::path& folder) {
  const Surface picture = makeSurface(200, 300);
  cairo_t* const canvas = cairo_create(picture.get());
  cairo_set_source_rgb(canvas, 1, 0, 0);
  cairo_rectangle(canvas, 0, 0, 100, 300);
  cairo_fill(canvas);
  cairo_set_source_rgb(canvas, 0, 0, 1);
  cairo_rectangle(canvas, 100, 0, 100, 300);
  cairo_fill(canvas);
  cairo_destroy(canvas);
  auto file = folder / "two-colors.png";
  writePng(picture, file);
  return file;
}

TEST(Looks, fillTheScreenInItsOwnPixels) {
  const struct {
    double scale, width, height;
    int pixelsAcross, pixelsDown;
  } screens[] = {{1, 320, 480, 320, 480}, {2, 320, 568, 640, 1136}, {3, 414, 736, 1242, 2208}};
  for (const auto& screen : screens) {
    SCOPED_TRACE(screen.scale);
    // Classes are registered once per process.
    EXPECT_EXIT(
        {
          HostOptions options = phoneOf();
          options.screenScale = screen.scale;
          options.screenWidth = screen.width;
          options.screenHeight = screen.height;
          auto homeScreen = HomeScreen::boot(options);
          homeScreen.load();
          const Surface picture = homeScreen.picture();
          const bool fits = cairo_image_surface_get_width(picture.get()) == screen.pixelsAcross &&
                            cairo_image_surface_get_height(picture.get()) == screen.pixelsDown;
          std::exit(fits ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
  }
}

TEST(Looks, blurAndDarkenTheWallpaperWhereAnUnderlayLies) {
  const TemporaryFolder folder;
  auto homeScreen = HomeScreen::boot(phoneOf());
  homeScreen.load();
  homeScreen.setWallpaper(writeTwoColors(folder.path()));
  // Left and right of the edge between the colours, below the list and beside the hint.
  constexpr int kRow = 990;
  constexpr int kEdge = 320;
  const Surface clear = homeScreen.picture();
  EXPECT_EQ(pixelAt(clear, kEdge - 4, kRow), 0xFF0000U);
  EXPECT_EQ(pixelAt(clear, kEdge + 4, kRow), 0x0000FFU);

  homeScreen.showNowPlaying();
  const Surface blurred = homeScreen.picture();
  EXPECT_NE(pixelAt(blurred, kEdge - 4, kRow) & 0x0000FFU, 0U) << "blue has run into the red";
  EXPECT_NE(pixelAt(blurred, kEdge + 4, kRow) & 0xFF0000U, 0U) << "red has run into the blue";
  const std::uint32_t farRed = pixelAt(blurred, 12, kRow) >> 16;
  EXPECT_GT(farRed, 0x80U);
  EXPECT_LT(farRed, 0xF0U) << "dark far from the edge, too";

  homeScreen.hideNowPlaying();
  const Surface again = homeScreen.picture();
  EXPECT_EQ(pixelAt(again, kEdge - 4, kRow), 0xFF0000U);
}

TEST(Looks, refuseAWallpaperThatIsNoPicture) {
  const TemporaryFolder folder;
  std::ofstream(folder.path() / "text.png") << "no picture";
  auto homeScreen = HomeScreen::boot(phoneOf());
  for (const auto& file : {folder.path() / "text.png", folder.path() / "missing.png", folder.path()}) {
    try {
      homeScreen.setWallpaper(file);
      FAIL() << file;
    } catch (const std::runtime_error& error) {
      EXPECT_NE(std::string(error.what()).find(file.string()), std::string::npos) << error.what();
    }
  }
  EXPECT_NE(homeScreen.picture(), nullptr);
}

TEST(Looks, includeTheCalendarsIconFile) {
  const TemporaryFolder folder;
  installStockIcons(folder.path());
  const Surface icon = loadImageFile(folder.path() / "Applications/MobileCal.app/icon-about@2x.png");
  ASSERT_NE(icon, nullptr);
  EXPECT_EQ(cairo_image_surface_get_width(icon.get()), 58);
  EXPECT_EQ(cairo_image_surface_get_height(icon.get()), 58);
  EXPECT_EQ(pixelAt(icon, 0, 0), 0xFFFFFFU) << "its corners are square";
  std::ofstream(folder.path() / "file") << "no folder";
  EXPECT_THROW(installStockIcons(folder.path() / "file"), std::runtime_error);
}

}  // namespace
}  // namespace phone
