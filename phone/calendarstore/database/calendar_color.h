// Calendar colours: reading them as calendar files write them, and the phone's own for files that name none.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace phone {

/// 0xRRGGBBAA from #RGB, #RRGGBB, #RRGGBBAA or one of the colour names of the web; none when it is neither.
std::optional<std::uint32_t> parseCalendarColor(std::string_view text);

/// The colour that the phone gives its n-th calendar, counted from 0.
std::uint32_t paletteColor(std::size_t n);

}  // namespace phone
