// Looks at a file before the system's loader does: the loader's own words name no remedy, and a file that is
// cut off would end the process.
#pragma once

#include <filesystem>

namespace phone {

/// Throws std::runtime_error when the path names no file that can be read.
void requireReadableFile(const std::filesystem::path& path);

/// Throws std::runtime_error that says what the file is and what is wanted, unless it is a whole shared
/// library for this machine's processor.
void requireSharedObject(const std::filesystem::path& path);

}  // namespace phone
