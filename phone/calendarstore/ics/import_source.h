// Which files an import is about, and what lies beside them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace phone {

/// Files that go to one calendar, unless they name another.
struct ImportSource {
  std::vector<std::filesystem::path> files = {};
  /// The calendar's name; decisive if the user gave it, else a last resort.
  std::string name = {};
  bool isNamedByUser = false;
  /// As written beside the files; empty if not.
  std::string color = {};
};

/// The sources that files and folders stand for; "-" is the standard input. A file that is named twice,
/// however it is named, counts at its first place only. Throws IcsError when there is no calendar in one of
/// them.
std::vector<ImportSource> findSources(const std::vector<std::filesystem::path>& paths);

/// The size of all files together, in bytes.
std::uint64_t totalSize(const std::vector<ImportSource>& sources);

}  // namespace phone
