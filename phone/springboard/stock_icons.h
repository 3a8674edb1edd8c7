// Icons of the applications that a phone comes with, drawn here, and the icon file that the calendar ships.
#pragma once

#include <filesystem>
#include <string>

class UIImage;

namespace phone {

/// The icon that stands beside the notifications of that application, 20 by 20 points (borrowed). An
/// application that is not known gets its initial on a colour of its own.
UIImage* notificationIcon(const std::string& bundleID);

/// Puts the icon files of the phone's own applications below a phone root, where other programs look for
/// them. Throws std::runtime_error with file and reason when that fails.
void installStockIcons(const std::filesystem::path& root);

}  // namespace phone
