// The phone root: where the phone's files lie on this machine.
#pragma once

#include <filesystem>
#include <string_view>

namespace phone {

/// The file on this machine for a name on the phone. Names in /var/mobile (also spelled /private/var/mobile)
/// and /Applications lie below the root; every other name is left as it is. A name with ".." in it cannot
/// leave the root.
std::filesystem::path pathOnThisMachine(std::string_view phonePath);

}  // namespace phone
