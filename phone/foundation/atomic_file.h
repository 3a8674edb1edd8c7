// Whole files: read at once, replaced at once.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace phone {

/// The file's content. Throws std::runtime_error with file and reason; a directory or a device is refused.
std::string readWholeFile(const std::filesystem::path& file);

/// Puts the content in place of the file in one step: a reader, and whoever comes after a crash, finds the
/// old content or the new. Throws std::runtime_error with file and reason, the old file being whole.
/// Temporary files that killed writers left beside the target are removed; those of running writers are not.
void writeFileAtomically(const std::filesystem::path& file, std::string_view content);

}  // namespace phone
