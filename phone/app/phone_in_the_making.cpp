#include "phone/app/phone_in_the_making.h"

#include <cerrno>
#include <cstdlib>
#include <new>
#include <system_error>

namespace phone {

namespace {

namespace fs = std::filesystem;

fs::path makeWorkshop(const fs::path& root) {
  std::string name = (root / ".in-the-making-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) {
    throw fs::filesystem_error("", root, std::error_code(errno, std::generic_category()));
  }
  return name;
}

/// The folder and those above it that are not there, from the topmost down.
std::vector<fs::path> missingFolders(fs::path folder) {
  std::vector<fs::path> missing;
  std::error_code error;
  for (; !folder.empty() && !fs::exists(folder, error); folder = folder.parent_path()) {
    missing.insert(missing.begin(), folder);
  }
  return missing;
}

/// Whatever is not to be removed stays; there is nobody to tell.
void removeWhole(const fs::path& entry) {
  std::error_code error;
  do {
    fs::remove_all(entry, error);
  } while (error == std::errc::interrupted);
}

}  // namespace

PhoneInTheMaking::PhoneInTheMaking(fs::path root) : root_(std::move(root)) {
  try {
    for (const fs::path& folder : missingFolders(root_)) {
      // False where the name ends in a slash: the folder was made as the one above itself.
      if (fs::create_directory(folder)) madeFolders_.push_back(folder);
    }
    workshop_ = makeWorkshop(root_);
  } catch (...) {
    takeAway();
    throw;
  }
}

PhoneInTheMaking::~PhoneInTheMaking() {
  try {
    takeAway();
  } catch (const std::bad_alloc&) {
    // What stays is named by the next attempt, which finds the folder not empty.
  }
}

void PhoneInTheMaking::finish(const std::vector<std::string>& names) {
  for (const std::string& name : names) {
    fs::rename(workshop_ / name, root_ / name);
    moved_.push_back(root_ / name);
  }
  moved_.clear();
  madeFolders_.clear();
}

void PhoneInTheMaking::takeAway() {
  for (const fs::path& entry : moved_) removeWhole(entry);
  if (!workshop_.empty()) removeWhole(workshop_);
  // Only what is empty goes: another process may have put something beside.
  std::error_code ignored;
  for (auto folder = madeFolders_.rbegin(); folder != madeFolders_.rend(); ++folder) {
    fs::remove(*folder, ignored);
  }
}

}  // namespace phone
