// The drawing library's colour: a list of components behind an opaque handle.
#pragma once

#include <cstddef>

#include "platform/coregraphics/cg_geometry.h"

struct CGColor;
using CGColorRef = CGColor*;

template <>
struct objc::Encoding<CGColorRef> {
  static constexpr FixedString value = "^{CGColor=}";
};

extern "C" {
/// The components, alpha last: red, green, blue, alpha, or white, alpha (borrowed from the colour).
const CGFloat* CGColorGetComponents(CGColorRef color);
/// How many components the colour has, alpha included; 0 for none. Weak: a host that keeps every colour as
/// red, green, blue and alpha has no need to offer it, and its absence must not keep a library from loading.
[[gnu::weak]] std::size_t CGColorGetNumberOfComponents(CGColorRef color);
}
