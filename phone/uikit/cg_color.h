// What stands behind a CGColorRef: the components, alpha last. A colour is borrowed from the object that
// holds it (a UIColor, a calendar), so nothing here is counted.
#pragma once

#include <array>
#include <cstddef>

#include "platform/coregraphics/cg_color.h"

struct CGColor {
  /// 4: red, green, blue, alpha; 2: white, alpha.
  std::size_t count = 4;
  std::array<CGFloat, 4> components = {0, 0, 0, 1};

  bool operator==(const CGColor&) const = default;
};

namespace phone {

struct Rgba {
  double red = 0;
  double green = 0;
  double blue = 0;
  double alpha = 1;
};

constexpr CGColor rgbColor(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
  return {4, {red, green, blue, alpha}};
}

constexpr CGColor greyColor(CGFloat white, CGFloat alpha) { return {2, {white, alpha, 0, 0}}; }

/// The colour as drawing needs it; black for none.
inline Rgba rgbaOf(const CGColor* color) {
  if (color == nullptr) return {};
  const auto& parts = color->components;
  if (color->count == 2) return {parts[0], parts[0], parts[0], parts[1]};
  return {parts[0], parts[1], parts[2], parts[3]};
}

}  // namespace phone
