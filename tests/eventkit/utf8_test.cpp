// Telling UTF-8 from other texts, at the edges of what its bytes may be.
#include "phone/calendarstore/ics/utf8.h"

#include <gtest/gtest.h>

namespace phone {
namespace {

/// The byte read as Western European, in UTF-8.
std::string fromLatin1(unsigned byte) {
  if (byte < 0x80) return {static_cast<char>(byte)};
  return {static_cast<char>(0xc0U | byte >> 6), static_cast<char>(0x80U | (byte & 0x3fU))};
}

TEST(Utf8, NoCharacterBeginsWithAContinuationNorWithABytePastTheLast) {
  for (unsigned first = 0x80; first <= 0xff; ++first) {
    if (first >= 0xc2 && first <= 0xf4) continue;
    for (const std::string rest : {"\x80", "\xbf", "\x80\x80\x80", "a", ""}) {
      const std::string text = static_cast<char>(first) + rest;
      EXPECT_FALSE(isUtf8(text)) << "0x" << std::hex << first << " before " << rest.size() << " more";
      EXPECT_TRUE(toUtf8(text).starts_with(fromLatin1(first))) << "0x" << std::hex << first;
      EXPECT_TRUE(isUtf8(toUtf8(text)));
      EXPECT_FALSE(isUtf8("caf\xc3\xa9 " + text));
    }
  }
}

TEST(Utf8, CharactersEndWhereTheyShould) {
  const struct {
    const char* text;
    bool isValid;
  } texts[] = {
      {"", true},
      {"\x7f", true},
      {"\xc2\x80", true},           // The first of two bytes,
      {"\xdf\xbf", true},           // the last,
      {"\xe0\xa0\x80", true},       // the first of three,
      {"\xe0\x9f\xbf", false},      // one that is longer than it need be,
      {"\xed\x9f\xbf", true},       // the last before the surrogates,
      {"\xed\xa0\x80", false},      // the first of them,
      {"\xed\xbf\xbf", false},      // the last,
      {"\xee\x80\x80", true},       // the first behind them,
      {"\xf0\x90\x80\x80", true},   // the first of four,
      {"\xf0\x8f\xbf\xbf", false},  // one that is longer than it need be,
      {"\xf4\x8f\xbf\xbf", true},   // the last of all,
      {"\xf4\x90\x80\x80", false},  // and one beyond.
      {"\xe2\x82", false},          // Cut off.
      {"\xe2\x82\x41", false},
      {"\xf0\x9f\x98", false},
  };
  for (const auto& [text, isValid] : texts) EXPECT_EQ(isUtf8(text), isValid) << testing::PrintToString(text);
}

TEST(Utf8, OnlyWhatIsNoUtf8IsReadAsWesternEuropean) {
  EXPECT_EQ(toUtf8("\xdcNN"), "\xc3\x9cNN") << "the first byte of the text is the wrong one";
  EXPECT_EQ(toUtf8("\xff"), "\xc3\xbf");
  EXPECT_EQ(toUtf8("caf\xe9"), "caf\xc3\xa9");
  EXPECT_EQ(toUtf8("\xc3\xa9\xe9\xc3\xa9"), "\xc3\xa9\xc3\xa9\xc3\xa9") << "what is right stays";
  EXPECT_EQ(toUtf8("\xe2\x82\xac"), "\xe2\x82\xac");
  EXPECT_EQ(toUtf8("\xe2\x82"), "\xc3\xa2\xc2\x82");
  EXPECT_EQ(toUtf8(std::string("a\0\xe9\0", 4)), std::string("a\0\xc3\xa9\0", 5))
      << "zero bytes are characters";
  EXPECT_TRUE(isUtf8(std::string("\0a\0", 3)));
}

}  // namespace
}  // namespace phone
