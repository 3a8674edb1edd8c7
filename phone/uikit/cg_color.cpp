#include "phone/uikit/cg_color.h"

const CGFloat* CGColorGetComponents(CGColorRef color) {
  return color == nullptr ? nullptr : color->components.data();
}

std::size_t CGColorGetNumberOfComponents(CGColorRef color) { return color == nullptr ? 0 : color->count; }
