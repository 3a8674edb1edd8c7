#include "phone/calendarstore/ics/windows_zone.h"

#include <algorithm>
#include <array>
#include <unicode/ucal.h>

namespace phone {

std::optional<EventZone> zoneNamedByWindows(const std::string& name) {
  constexpr std::size_t kMaxName = 64;
  const auto isAscii = [](char c) { return static_cast<unsigned char>(c) < 0x80; };
  if (name.size() > kMaxName || !std::all_of(name.begin(), name.end(), isAscii)) return std::nullopt;
  const std::u16string windowsName(name.begin(), name.end());
  std::array<char16_t, kMaxName> found{};
  UErrorCode error = U_ZERO_ERROR;
  // ICU reads its table at the first call, so only who meets such a name pays for it.
  const std::int32_t length =
      ucal_getTimeZoneIDForWindowsID(windowsName.data(), static_cast<std::int32_t>(windowsName.size()),
                                     nullptr, found.data(), static_cast<std::int32_t>(found.size()), &error);
  if (U_FAILURE(error) || length <= 0) return std::nullopt;
  return EventZone::named({found.begin(), found.begin() + length});
}

}  // namespace phone
