// Colours as texts: what is read, what is written, and that both ends agree.
#include <gtest/gtest.h>

#include "phone/uikit/cg_color.h"
#include "phone/uikit/ui_color.h"
#include "platform/uikit/ui_color.h"
#include "tests/tavimo/support/lock_screen.h"

namespace phone {
namespace {

objc::Owned<UIColor> parsed(NSString* colorText) {
  return objc::Owned<UIColor>::adopt(pluginSymbol<UIColor*(NSString*)>("colorFromHexString")(colorText));
}

std::string written(UIColor* color) {
  return utf8(
      objc::Owned<NSString>::adopt(pluginSymbol<NSString*(UIColor*)>("hexStringForColor")(color)).get());
}

TEST(ColorStrings, SixDigitsBehindAnyCharacterAreRead) {
  const LockScreen phone;
  const struct {
    const char* colorText;
    unsigned red, green, blue;
  } rows[] = {{"#FF8000", 255, 128, 0},
              {"#ff8000", 255, 128, 0},
              {"xFF8000", 255, 128, 0},
              {"\u20acFF8000", 255, 128, 0},
              {"#FF8000CC", 255, 128, 0},
              {"#FF8000zz", 255, 128, 0},
              {"#12345G", 0x01, 0x23, 0x45},
              {"#GGGGGG", 0, 0, 0},
              {"#  1234", 0, 0x12, 0x34},
              {"#0xABCD", 0, 0xAB, 0xCD},
              {"FF8000", 255, 255, 255},
              {"FF800", 255, 255, 255},
              {"#FF8000C", 255, 255, 255},
              // Seven characters on the screen, but eight units.
              {"\U0001F600FF8000", 255, 255, 255},
              {"", 255, 255, 255}};
  for (const auto& row : rows) {
    const auto color = parsed(text(row.colorText));
    const CGFloat* const parts = CGColorGetComponents(color->getCGColor());
    EXPECT_EQ((std::vector<CGFloat>{parts, parts + 4}),
              (std::vector<CGFloat>{row.red / 255.0, row.green / 255.0, row.blue / 255.0, 1}))
        << row.colorText;
  }
  EXPECT_EQ(written(parsed(nullptr).get()), "#FFFFFF");
}

TEST(ColorStrings, ComponentsAreTruncatedAndWrittenInUpperCase) {
  const LockScreen phone;
  EXPECT_EQ(written(UIColor::colorWithRed(1, 0.5, 0, 1)), "#FF7F00");
  EXPECT_EQ(written(UIColor::colorWithRed(0.999, 171 / 255.0, 0.0039, 0)), "#FEAB00");
  EXPECT_EQ(written(UIColor::colorWithWhite(0.5, 0.25)), "#7F7F7F");
  EXPECT_EQ(written(makeColor({.count = 3, .components = {1, 0.5, 0}}).get()), "#FF7F00") << "no alpha";
  EXPECT_EQ(written(nullptr), "#FFFFFF");
}

TEST(ColorStrings, WhatIsReadIsWrittenBackTheSame) {
  const LockScreen phone;
  for (unsigned value = 0; value < 256; ++value) {
    char colorText[8];
    std::snprintf(colorText, sizeof colorText, "#%02X%02X%02X", value, 255 - value, value ^ 0x55);
    EXPECT_EQ(written(parsed(text(colorText)).get()), colorText);
  }
}

}  // namespace
}  // namespace phone
