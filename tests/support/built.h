// Where this build put what tests run, and where the source tree is. Known to one file, so that the same test
// compiled in two checkouts is the same to a compiler cache.
#pragma once

#include <filesystem>

namespace phone {

/// The plug-in's library.
std::filesystem::path pluginLibrary();

/// The `phone` command's program.
std::filesystem::path phoneCommand();

/// The top of the checkout.
std::filesystem::path sourceFolder();

}  // namespace phone
