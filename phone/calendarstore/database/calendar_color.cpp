#include "phone/calendarstore/database/calendar_color.h"

#include <array>
#include <charconv>
#include <pango/pango.h>
#include <string>

namespace phone {

namespace {

constexpr std::array<std::uint32_t, 7> kPalette = {0x1badf8ff, 0x63da38ff, 0xff9500ff, 0xcc73e1ff,
                                                   0xff2968ff, 0xffcc00ff, 0xa2845eff};

std::optional<std::uint32_t> parseHexadecimal(std::string_view digits) {
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  switch (digits.size()) {
    case 3: {
      const auto wide = [value](int shift) { return ((value >> shift) & 15U) * 17U; };
      return wide(8) << 24 | wide(4) << 16 | wide(0) << 8 | 0xffU;
    }
    case 6:
      return value << 8 | 0xffU;
    case 8:
      return value;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::optional<std::uint32_t> parseCalendarColor(std::string_view text) {
  constexpr std::string_view kSpace = " \t\r\n";
  const std::size_t first = text.find_first_not_of(kSpace);
  if (first == std::string_view::npos) return std::nullopt;
  text = text.substr(first, text.find_last_not_of(kSpace) - first + 1);
  if (text.front() == '#') return parseHexadecimal(text.substr(1));
  PangoColor color;
  if (pango_color_parse(&color, std::string(text).c_str()) == 0) return std::nullopt;
  const auto byte = [](guint16 part) { return static_cast<std::uint32_t>(part >> 8); };
  return byte(color.red) << 24 | byte(color.green) << 16 | byte(color.blue) << 8 | 0xffU;
}

std::uint32_t paletteColor(std::size_t n) { return kPalette[n % kPalette.size()]; }

}  // namespace phone
