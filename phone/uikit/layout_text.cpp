#include "phone/uikit/layout_text.h"

#include <algorithm>
#include <vector>

namespace phone {

namespace {

bool isLead(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isTrail(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// True for what would end the line or cannot be shown.
bool isBreakOrControl(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0x2028 ||
         character == 0x2029;
}

void appendUtf8(std::string& utf8, char32_t character) {
  if (character < 0x80) {
    utf8 += static_cast<char>(character);
  } else if (character < 0x800) {
    utf8 += static_cast<char>(0xC0 | (character >> 6));
    utf8 += static_cast<char>(0x80 | (character & 0x3F));
  } else if (character < 0x10000) {
    utf8 += static_cast<char>(0xE0 | (character >> 12));
    utf8 += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
    utf8 += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    utf8 += static_cast<char>(0xF0 | (character >> 18));
    utf8 += static_cast<char>(0x80 | ((character >> 12) & 0x3F));
    utf8 += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
    utf8 += static_cast<char>(0x80 | (character & 0x3F));
  }
}

}  // namespace

const std::string& layoutText(NSString* text, NSUInteger mostUnits) {
  static std::vector<char16_t> units;
  static std::string utf8;
  units.resize(std::min(text->length(), mostUnits));
  utf8.clear();
  // The phone's own conversion stops at a zero character and refuses half a surrogate pair.
  text->getCharacters(units.data(), NSRange{0, units.size()});
  for (std::size_t i = 0; i < units.size(); ++i) {
    char32_t character = units[i];
    if (isLead(character) && i + 1 < units.size() && isTrail(units[i + 1])) {
      character = 0x10000 + ((character - 0xD800) << 10) + (units[++i] - 0xDC00);
    } else if (isLead(character) || isTrail(character)) {
      character = 0xFFFD;
    }
    appendUtf8(utf8, isBreakOrControl(character) ? U' ' : character);
  }
  return utf8;
}

}  // namespace phone
