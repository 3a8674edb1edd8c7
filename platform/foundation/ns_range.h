// A range of positions in a text or an array.
#pragma once

#include "platform/foundation/ns_object.h"

struct NSRange {
  NSUInteger location;
  NSUInteger length;
};

template <>
struct objc::Encoding<NSRange> {
  static constexpr auto value = FixedString("{_NSRange=") + Encoding<NSUInteger>::value +
                                Encoding<NSUInteger>::value + FixedString("}");
};
