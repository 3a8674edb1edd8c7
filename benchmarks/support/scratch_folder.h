// A folder for the length of one program.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <unistd.h>

namespace benchmarks {

class ScratchFolder {
 public:
  ScratchFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "tavimo-bench-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr)
      throw std::runtime_error("cannot make a scratch folder " + pattern);
    path_ = pattern;
  }
  ~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  ScratchFolder(const ScratchFolder&) = delete;
  ScratchFolder& operator=(const ScratchFolder&) = delete;

  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace benchmarks
