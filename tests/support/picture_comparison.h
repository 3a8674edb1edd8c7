// Comparing drawn pictures with reference pictures, and looking at single pixels.
#pragma once

#include <compare>
#include <filesystem>
#include <gtest/gtest.h>
#include <iosfwd>
#include <vector>

#include "phone/uikit/surface.h"

namespace phone {

/// One pixel, premultiplied.
struct Pixel {
  int red;
  int green;
  int blue;
  int alpha;
  bool operator==(const Pixel&) const = default;
};
std::ostream& operator<<(std::ostream& out, const Pixel& pixel);

inline constexpr Pixel kTransparent = {0, 0, 0, 0};

/// The pixel at that place, which must lie inside the picture.
Pixel pixelAt(const Surface& surface, int x, int y);

/// The largest difference between two pixels' channels, 0 to 255.
int pixelDistance(const Pixel& left, const Pixel& right);

/// A part of a picture, in pixels.
struct PixelRect {
  int x;
  int y;
  int width;
  int height;
};

/// How far a picture may be from its reference. The defaults leave room for the edges of letters, which other
/// versions of the font libraries smooth a little differently, and for nothing that has moved by a pixel over
/// any length.
struct PictureTolerance {
  /// Pixels that differ by no more count as equal.
  int distance = 32;
  /// The share of all pixels that may differ by more.
  double share = 0.002;
  /// Where letters stand. Pixels in there are counted apart, so that the rest can be compared more strictly.
  std::vector<PixelRect> lettering = {};
  /// The share of the lettering's pixels that may differ by more.
  double letteringShare = 0.05;
};

/// Compares the picture with the PNG file. When they differ, the assertion's message says where and by how
/// much, and the drawn picture and one that marks the difference are written beside each other in the
/// directory `pictures` of the build. With TAVIMO_WRITE_PICTURES=1 in the environment the reference is
/// written instead, to be looked at before it is kept.
testing::AssertionResult matchesPicture(const Surface& drawn, const std::filesystem::path& reference,
                                        const PictureTolerance& tolerance = {});

}  // namespace phone
