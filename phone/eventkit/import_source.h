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

/// The sources that a file or a folder stands for. Throws IcsError when there is no calendar in it.
std::vector<ImportSource> findSources(const std::filesystem::path& path);

/// The size of all files together, in bytes.
std::uint64_t totalSize(const std::vector<ImportSource>& sources);

}  // namespace phone
