#include "tests/support/picture_comparison.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ostream>

#include "phone/uikit/image_file.h"

namespace phone {

namespace {

struct Size {
  int width;
  int height;
  bool operator==(const Size&) const = default;
};

Size sizeOf(const Surface& surface) {
  return {cairo_image_surface_get_width(surface.get()), cairo_image_surface_get_height(surface.get())};
}

std::uint32_t* rowAt(const Surface& surface, int y) {
  return reinterpret_cast<std::uint32_t*>(cairo_image_surface_get_data(surface.get()) +
                                          std::ptrdiff_t{y} * cairo_image_surface_get_stride(surface.get()));
}

/// Red where the two pictures differ by more than the tolerance, the drawn picture faintly elsewhere.
Surface markDifference(const Surface& drawn, const Surface& expected, int distance) {
  const auto [width, height] = sizeOf(drawn);
  Surface marked = makeSurface(width, height);
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const Pixel pixel = pixelAt(drawn, x, y);
      const bool isFar = pixelDistance(pixel, pixelAt(expected, x, y)) > distance;
      const std::uint32_t faint = static_cast<std::uint32_t>(pixel.red + pixel.green + pixel.blue) / 12;
      rowAt(marked, y)[x] = isFar ? 0xFFFF0000 : 0xFF000000 | faint << 16 | faint << 8 | faint;
    }
  }
  cairo_surface_mark_dirty(marked.get());
  return marked;
}

/// For each pixel, row by row, whether it lies in one of the rectangles.
std::vector<bool> maskOf(const std::vector<PixelRect>& rects, Size size) {
  std::vector<bool> mask(static_cast<std::size_t>(size.width) * size.height);
  for (const PixelRect& rect : rects) {
    for (int y = std::max(rect.y, 0); y < std::min(rect.y + rect.height, size.height); ++y) {
      for (int x = std::max(rect.x, 0); x < std::min(rect.x + rect.width, size.width); ++x) {
        mask[static_cast<std::size_t>(y) * size.width + x] = true;
      }
    }
  }
  return mask;
}

/// How many pixels of a part were looked at, and how many of them are too far from the reference.
struct Differences {
  int all = 0;
  int far = 0;
};

}  // namespace

std::ostream& operator<<(std::ostream& out, const Pixel& pixel) {
  return out << "(" << pixel.red << ", " << pixel.green << ", " << pixel.blue << ", " << pixel.alpha << ")";
}

Pixel pixelAt(const Surface& surface, int x, int y) {
  cairo_surface_flush(surface.get());
  const std::uint32_t pixel = rowAt(surface, y)[x];
  return {static_cast<int>(pixel >> 16 & 0xFF), static_cast<int>(pixel >> 8 & 0xFF),
          static_cast<int>(pixel & 0xFF), static_cast<int>(pixel >> 24)};
}

int pixelDistance(const Pixel& left, const Pixel& right) {
  return std::max({std::abs(left.red - right.red), std::abs(left.green - right.green),
                   std::abs(left.blue - right.blue), std::abs(left.alpha - right.alpha)});
}

testing::AssertionResult matchesPicture(const Surface& drawn, const std::filesystem::path& reference,
                                        const PictureTolerance& tolerance) {
  if (drawn == nullptr) return testing::AssertionFailure() << "nothing was drawn";
  if (std::getenv("TAVIMO_WRITE_PICTURES") != nullptr) {
    std::filesystem::create_directories(reference.parent_path());
    writePng(drawn, reference);
    return testing::AssertionSuccess();
  }
  const std::filesystem::path results = "pictures";
  const std::string name = reference.stem().string();
  const Surface expected = loadImageFile(reference);
  if (expected == nullptr || sizeOf(expected) != sizeOf(drawn)) {
    std::filesystem::create_directories(results);
    writePng(drawn, results / (name + ".drawn.png"));
    return testing::AssertionFailure()
           << (expected == nullptr ? "there is no reference picture " : "the size differs from ") << reference
           << "; look at " << std::filesystem::absolute(results / (name + ".drawn.png"));
  }
  const auto [width, height] = sizeOf(drawn);
  const std::vector<bool> isLetter = maskOf(tolerance.lettering, {width, height});
  Differences letters;
  Differences others;
  int worst = 0;
  int top = height;
  int bottom = 0;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const int distance = pixelDistance(pixelAt(drawn, x, y), pixelAt(expected, x, y));
      Differences& place = isLetter[static_cast<std::size_t>(y) * width + x] ? letters : others;
      ++place.all;
      worst = std::max(worst, distance);
      if (distance <= tolerance.distance) continue;
      ++place.far;
      top = std::min(top, y);
      bottom = std::max(bottom, y);
    }
  }
  if (others.far <= tolerance.share * others.all && letters.far <= tolerance.letteringShare * letters.all) {
    return testing::AssertionSuccess();
  }
  std::filesystem::create_directories(results);
  writePng(drawn, results / (name + ".drawn.png"));
  writePng(markDifference(drawn, expected, tolerance.distance), results / (name + ".difference.png"));
  return testing::AssertionFailure() << others.far << " pixels of " << reference << " differ, and "
                                     << letters.far << " of its letters, by " << worst << " at most, in rows "
                                     << top << " to " << bottom << "; look at "
                                     << std::filesystem::absolute(results / (name + ".difference.png"));
}

}  // namespace phone
