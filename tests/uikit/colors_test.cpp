// Colours and the text forms of sizes and rectangles.
#include <vector>

#include "platform/coregraphics/cg_geometry.h"
#include "platform/uikit/ui_color.h"
#include "tests/uikit/uikit_test.h"

namespace phone {
namespace {

using Colors = UIKitTest;

std::vector<double> componentsOf(UIColor* color) {
  CGColorRef const components = color->getCGColor();
  const CGFloat* const first = CGColorGetComponents(components);
  return {first, first + CGColorGetNumberOfComponents(components)};
}

TEST_F(Colors, NamedColoursHaveThePublishedComponents) {
  using Components = std::vector<double>;
  const struct {
    UIColor* color;
    Components components;
  } rows[] = {
      {UIColor::redColor(), {1, 0, 0, 1}},
      {UIColor::greenColor(), {0, 1, 0, 1}},
      {UIColor::blueColor(), {0, 0, 1, 1}},
      {UIColor::yellowColor(), {1, 1, 0, 1}},
      {UIColor::orangeColor(), {1, 0.5, 0, 1}},
      {UIColor::purpleColor(), {0.5, 0, 0.5, 1}},
      {UIColor::brownColor(), {0.6, 0.4, 0.2, 1}},
      // The phone holds greys with one component and alpha.
      {UIColor::whiteColor(), {1, 1}},
      {UIColor::grayColor(), {0.5, 1}},
      {UIColor::blackColor(), {0, 1}},
      {UIColor::clearColor(), {0, 0}},
  };
  for (const auto& [color, components] : rows) EXPECT_EQ(componentsOf(color), components);
  EXPECT_EQ(UIColor::redColor(), UIColor::redColor());
}

TEST_F(Colors, EqualComponentsMakeEqualColours) {
  UIColor* const orange = UIColor::colorWithRed(1, 0.5, 0, 1);
  EXPECT_TRUE(orange->isEqual(UIColor::orangeColor()));
  const auto hash = [](UIColor* color) { return objc::send<"hash", NSUInteger>(color); };
  EXPECT_EQ(hash(orange), hash(UIColor::orangeColor()));
  EXPECT_TRUE(UIColor::colorWithCGColor(orange->getCGColor())->isEqual(orange));
  EXPECT_FALSE(orange->isEqual(UIColor::colorWithRed(1, 0.5, 0, 0.5)));
  EXPECT_FALSE(orange->isEqual("orange"_ns));
  EXPECT_FALSE(orange->isEqual(nullptr));
  EXPECT_EQ(UIColor::colorWithCGColor(nullptr), nullptr);
  EXPECT_STREQ(orange->description()->UTF8String(), "UIDeviceRGBColorSpace 1 0.5 0 1");
  EXPECT_STREQ(UIColor::clearColor()->description()->UTF8String(), "UIDeviceWhiteColorSpace 0 0");
}

TEST_F(Colors, SizesAndRectanglesAreWrittenInFull) {
  EXPECT_STREQ(NSStringFromCGSize({40, 15})->UTF8String(), "{40, 15}");
  EXPECT_STREQ(NSStringFromCGRect({{270, 18.5}, {-1, 0.1}})->UTF8String(),
               "{{270, 18.5}, {-1, 0.10000000000000001}}");
}

}  // namespace
}  // namespace phone
