// Files that a user names for output, whatever they are.
#pragma once

#include <filesystem>
#include <string_view>

#include "phone/foundation/file_descriptor.h"

namespace phone {

/// Writes where the name leads. A plain file is replaced at once, and kept whole when that fails; a device, a
/// pipe or an open file is written to as it is. A reader that has gone away had enough. Throws
/// std::runtime_error with file and reason.
void writeOutputFile(const std::filesystem::path& file, std::string_view content);

/// The same for a file that is open; `name` is for the error.
void writeOpenFile(const FileDescriptor& opened, const std::filesystem::path& name, std::string_view content);

}  // namespace phone
