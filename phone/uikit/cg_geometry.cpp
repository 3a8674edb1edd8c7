// Text forms of sizes and rectangles, with the phone's 17 significant digits in every locale.
#include "platform/coregraphics/cg_geometry.h"

#include <charconv>
#include <string>

namespace {

std::string numberText(CGFloat number) {
  char digits[32];
  const auto [end, failure] =
      std::to_chars(std::begin(digits), std::end(digits), number, std::chars_format::general, 17);
  return {digits, end};
}

std::string pairText(CGFloat first, CGFloat second) {
  return "{" + numberText(first) + ", " + numberText(second) + "}";
}

}  // namespace

NSString* NSStringFromCGSize(CGSize size) {
  return NSString::stringWithUTF8String(pairText(size.width, size.height).c_str());
}

NSString* NSStringFromCGRect(CGRect rect) {
  const std::string text =
      "{" + pairText(rect.origin.x, rect.origin.y) + ", " + pairText(rect.size.width, rect.size.height) + "}";
  return NSString::stringWithUTF8String(text.c_str());
}
