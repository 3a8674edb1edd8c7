#include "tavimo/support/color_strings.h"

#include <limits>

#include "platform/foundation/literal.h"
#include "platform/foundation/ns_scanner.h"
#include "platform/objc/owned.h"

namespace {

constexpr double kComponentScale = 255.0;

int componentAsByte(double component) {
  const double scaled = component * kComponentScale;
  // Wide-gamut colours have components outside 0 to 1, and a host may hand over anything.
  if (!(scaled > std::numeric_limits<int>::min())) return std::numeric_limits<int>::min();
  if (scaled >= std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
  return static_cast<int>(scaled);
}

}  // namespace

UIColor* colorFromHexString(NSString* text) {
  const NSUInteger length = text->length();
  NSString* const digits = length == 7 || length == 9 ? text->substringWithRange({1, 6}) : "FFFFFF"_ns;
  unsigned int value = 0;
  NSScanner* const scanner = NSScanner::scannerWithString(digits);
  scanner->setScanLocation(0);
  scanner->scanHexInt(&value);
  return objc::Owned<UIColor>::retain(UIColor::colorWithRed(((value >> 16) & 0xFF) / kComponentScale,
                                                            ((value >> 8) & 0xFF) / kComponentScale,
                                                            (value & 0xFF) / kComponentScale, 1.0))
      .relinquish();
}

NSString* hexStringForColor(UIColor* color) {
  CGColorRef const drawn = color->getCGColor();
  const CGFloat* const components = drawn == nullptr ? nullptr : CGColorGetComponents(drawn);
  double red = 1.0;
  double green = 1.0;
  double blue = 1.0;
  if (components != nullptr) {
    const bool isGrey = CGColorGetNumberOfComponents != nullptr && CGColorGetNumberOfComponents(drawn) < 3;
    red = components[0];
    green = isGrey ? red : components[1];
    blue = isGrey ? red : components[2];
  }
  return objc::Owned<NSString>::retain(NSString::stringWithFormat("#%02X%02X%02X"_ns, componentAsByte(red),
                                                                  componentAsByte(green),
                                                                  componentAsByte(blue)))
      .relinquish();
}
