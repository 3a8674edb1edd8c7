// Points, sizes and rectangles, in points unless said otherwise.
#pragma once

#include "platform/foundation/ns_string.h"

#if defined(__LP64__)
using CGFloat = double;
#else
using CGFloat = float;
#endif

struct CGPoint {
  CGFloat x;
  CGFloat y;
};

struct CGSize {
  CGFloat width;
  CGFloat height;
};

struct CGRect {
  CGPoint origin;
  CGSize size;
};

inline CGFloat CGRectGetMinX(CGRect rect) {
  return rect.size.width < 0 ? rect.origin.x + rect.size.width : rect.origin.x;
}
inline CGFloat CGRectGetMinY(CGRect rect) {
  return rect.size.height < 0 ? rect.origin.y + rect.size.height : rect.origin.y;
}
inline CGFloat CGRectGetWidth(CGRect rect) {
  return rect.size.width < 0 ? -rect.size.width : rect.size.width;
}
inline CGFloat CGRectGetHeight(CGRect rect) {
  return rect.size.height < 0 ? -rect.size.height : rect.size.height;
}

// clang-format off
template <> struct objc::Encoding<CGPoint> {
  static constexpr auto value = FixedString("{CGPoint=") + Encoding<CGFloat>::value + Encoding<CGFloat>::value + FixedString("}");
};
template <> struct objc::Encoding<CGSize> {
  static constexpr auto value = FixedString("{CGSize=") + Encoding<CGFloat>::value + Encoding<CGFloat>::value + FixedString("}");
};
template <> struct objc::Encoding<CGRect> {
  static constexpr auto value = FixedString("{CGRect=") + Encoding<CGPoint>::value + Encoding<CGSize>::value + FixedString("}");
};
// clang-format on

extern "C" {
/// "{width, height}" and "{{x, y}, {width, height}}" (borrowed).
NSString* NSStringFromCGSize(CGSize size);
NSString* NSStringFromCGRect(CGRect rect);
}
