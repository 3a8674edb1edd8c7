// Tries the inputs in the given files and folders, one after the other, without libFuzzer. The last name on
// standard output is the input that broke something.
#include <algorithm>
#include <filesystem>
#include <iostream>
#include <iterator>
#include <stdexcept>
#include <vector>

#include "fuzz/support/target.h"
#include "tests/foundation/temporary_folder.h"

namespace {

namespace fs = std::filesystem;

/// Throws std::filesystem::filesystem_error when there is nothing of that name.
std::vector<fs::path> filesIn(const fs::path& place) {
  if (!fs::is_directory(fs::canonical(place))) return {place};
  std::vector<fs::path> files;
  for (const auto& entry : fs::directory_iterator(place)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  std::ranges::sort(files);
  return files;
}

}  // namespace

int main(int argc, char** argv) try {
  std::vector<fs::path> files;
  for (int i = 1; i < argc; ++i) std::ranges::copy(filesIn(argv[i]), std::back_inserter(files));
  if (files.empty()) throw std::runtime_error("no input to replay; name files, or folders that hold some");
  const auto target = phone::fuzz::makeTarget();
  for (const fs::path& file : files) {
    std::cout << file.string() << std::endl;
    phone::fuzz::tryInput(*target, phone::bytesOf(file));
  }
} catch (const std::exception& error) {
  std::cerr << "replay: " << error.what() << "\n";
  return 1;
}
