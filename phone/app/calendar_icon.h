// The Calendar app's icon, which a new phone gets, so that events have one by default.
#pragma once

#include <filesystem>

namespace phone {

/// Draws the icon as a PNG of 58 x 58 pixels: 29 points at scale 2. Throws std::runtime_error with file and
/// reason.
void drawCalendarIcon(const std::filesystem::path& file);

}  // namespace phone
