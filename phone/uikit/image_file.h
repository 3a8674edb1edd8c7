// Pictures from PNG and JPEG files. Every file is assumed hostile: its claimed size is looked at before
// anything is decoded.
#pragma once

#include <filesystem>

#include "phone/uikit/surface.h"

namespace phone {

/// The picture in the file. None when the file is missing, unreadable, no regular file, no picture, broken,
/// or has more pixels than a surface may have. A file that is there and could not be read is kept for
/// fileProblems().
Surface loadImageFile(const std::filesystem::path& path);

}  // namespace phone
