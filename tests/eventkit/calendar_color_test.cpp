// The colours that calendar files give.
#include "phone/calendarstore/database/calendar_color.h"

#include <gtest/gtest.h>

namespace phone {
namespace {

TEST(CalendarColor, IsReadInEveryFormThatFilesHave) {
  EXPECT_EQ(parseCalendarColor("#F80"), 0xFF8800FFU);
  EXPECT_EQ(parseCalendarColor("#ff8000"), 0xFF8000FFU);
  EXPECT_EQ(parseCalendarColor("#FF800040"), 0xFF800040U);
  EXPECT_EQ(parseCalendarColor(" \t#123456 \r\n"), 0x123456FFU);
  EXPECT_EQ(parseCalendarColor("Red"), 0xFF0000FFU);
  EXPECT_EQ(parseCalendarColor(" turquoise "), 0x40E0D0FFU);
  EXPECT_EQ(parseCalendarColor("yellow"), 0xFFFF00FFU);
  EXPECT_EQ(parseCalendarColor("AQUA"), 0x00FFFFFFU);
  EXPECT_EQ(parseCalendarColor("darkorange"), 0xFF8C00FFU);
  // X11 has other colours under these names of the web.
  EXPECT_EQ(parseCalendarColor("gray"), 0x808080FFU);
  EXPECT_EQ(parseCalendarColor("green"), 0x008000FFU);
}

TEST(CalendarColor, OfAnotherFormIsNone) {
  for (const char* const text :
       {"", " \n", "#", "#12", "#1234", "#12345", "#1234567", "#123456789", "#12345g", "#-12345", "#+12345",
        "# 12345", "123456", "reds", "re", "zzz", "red green"}) {
    EXPECT_EQ(parseCalendarColor(text), std::nullopt) << text;
  }
}

TEST(CalendarColor, ComesFromAPaletteThatBeginsAnew) {
  EXPECT_EQ(paletteColor(0), 0x1BADF8FFU);
  EXPECT_NE(paletteColor(6), paletteColor(0));
  EXPECT_EQ(paletteColor(7), paletteColor(0));
}

}  // namespace
}  // namespace phone
