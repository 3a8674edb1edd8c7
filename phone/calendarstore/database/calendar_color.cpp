#include "phone/calendarstore/database/calendar_color.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string>

namespace phone {

namespace {

struct NamedColor {
  std::string_view name;
  std::uint32_t color;
};

// The web's basic names and those that calendar programs offer besides; sorted.
constexpr NamedColor kNamedColors[] = {
    {"aqua", 0x00ffffff},      {"black", 0x000000ff},      {"blue", 0x0000ffff},    {"brown", 0xa52a2aff},
    {"coral", 0xff7f50ff},     {"crimson", 0xdc143cff},    {"cyan", 0x00ffffff},    {"darkblue", 0x00008bff},
    {"darkgreen", 0x006400ff}, {"darkred", 0x8b0000ff},    {"fuchsia", 0xff00ffff}, {"gold", 0xffd700ff},
    {"gray", 0x808080ff},      {"green", 0x008000ff},      {"grey", 0x808080ff},    {"indigo", 0x4b0082ff},
    {"lightblue", 0xadd8e6ff}, {"lightgreen", 0x90ee90ff}, {"lime", 0x00ff00ff},    {"magenta", 0xff00ffff},
    {"maroon", 0x800000ff},    {"navy", 0x000080ff},       {"olive", 0x808000ff},   {"orange", 0xffa500ff},
    {"orchid", 0xda70d6ff},    {"pink", 0xffc0cbff},       {"purple", 0x800080ff},  {"red", 0xff0000ff},
    {"salmon", 0xfa8072ff},    {"silver", 0xc0c0c0ff},     {"skyblue", 0x87ceebff}, {"slateblue", 0x6a5acdff},
    {"steelblue", 0x4682b4ff}, {"teal", 0x008080ff},       {"tomato", 0xff6347ff},  {"turquoise", 0x40e0d0ff},
    {"violet", 0xee82eeff},    {"white", 0xffffffff},      {"yellow", 0xffff00ff},
};

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
  std::string name(text);
  std::transform(name.begin(), name.end(), name.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c; });
  const auto* const found = std::lower_bound(
      std::begin(kNamedColors), std::end(kNamedColors), name,
      [](const NamedColor& entry, const std::string& wanted) { return entry.name < wanted; });
  if (found == std::end(kNamedColors) || found->name != name) return std::nullopt;
  return found->color;
}

std::uint32_t paletteColor(std::size_t n) { return kPalette[n % kPalette.size()]; }

}  // namespace phone
