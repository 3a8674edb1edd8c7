#include "phone/calendarstore/ics/utf8.h"

#include <cstdint>

namespace phone {

namespace {

/// How many bytes the character at `position` takes; 0 if it is no character.
std::size_t characterLength(std::string_view text, std::size_t position) {
  const auto byte = [&](std::size_t offset) -> unsigned {
    return position + offset < text.size() ? static_cast<unsigned char>(text[position + offset]) : 0U;
  };
  const unsigned first = byte(0);
  if (first < 0x80) return 1;
  const std::size_t length = first >= 0xf0 && first < 0xf5   ? 4
                             : first >= 0xe0 && first < 0xf0 ? 3
                             : first >= 0xc2 && first < 0xe0 ? 2
                                                             : 0;
  std::uint32_t code = first & (0x7fU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xc0U) != 0x80U) return 0;
    code = code << 6 | (byte(i) & 0x3fU);
  }
  const bool isOverlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
  const bool isSurrogate = code >= 0xd800 && code < 0xe000;
  return isOverlong || isSurrogate || code > 0x10ffff ? 0 : length;
}

}  // namespace

bool isUtf8(std::string_view text) {
  for (std::size_t position = 0; position < text.size();) {
    const std::size_t length = characterLength(text, position);
    if (length == 0) return false;
    position += length;
  }
  return true;
}

std::string toUtf8(std::string_view text) {
  if (isUtf8(text)) return std::string(text);
  std::string converted;
  converted.reserve(text.size());
  for (std::size_t position = 0; position < text.size();) {
    const std::size_t length = characterLength(text, position);
    if (length == 0) {
      const auto byte = static_cast<unsigned char>(text[position++]);
      converted += {static_cast<char>(0xc0U | byte >> 6), static_cast<char>(0x80U | (byte & 0x3fU))};
    } else {
      converted += text.substr(position, length);
      position += length;
    }
  }
  return converted;
}

}  // namespace phone
