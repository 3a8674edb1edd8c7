// A folder for one test, removed with all that is in it.
#pragma once

#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <stdlib.h>
#include <string>
#include <string_view>

namespace phone {

class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = std::filesystem::temp_directory_path() / "tavimo-XXXXXX";
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("cannot make a temporary folder");
    path_ = name;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

inline void writeBytes(const std::filesystem::path& file, std::string_view bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

inline std::string bytesOf(const std::filesystem::path& file) {
  std::ostringstream bytes;
  bytes << std::ifstream(file, std::ios::binary).rdbuf();
  return bytes.str();
}

}  // namespace phone
