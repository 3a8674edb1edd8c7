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

/// Whatever is not to be removed stays; there is nobody to tell. To list what is in a folder takes memory, of
/// which a moment later there may be enough.
void removeWhole(const fs::path& entry) {
  constexpr int kMaxTries = 3;
  for (int tries = 0; tries < kMaxTries; ++tries) {
    try {
      std::error_code error;
      do {
        fs::remove_all(entry, error);
      } while (error == std::errc::interrupted);
      return;
    } catch (const std::bad_alloc&) {
      continue;
    }
  }
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

PhoneInTheMaking::~PhoneInTheMaking() { takeAway(); }

void PhoneInTheMaking::finish(const std::vector<std::string>& names) {
  // Once something is in its place, noting that takes no memory any more.
  moved_.reserve(names.size());
  for (const std::string& name : names) {
    fs::path place = root_ / name;
    fs::rename(workshop_ / name, place);
    moved_.push_back(std::move(place));
  }
  moved_.clear();
  madeFolders_.clear();
  // The workshop is empty now, and an empty folder goes without any memory.
  std::error_code error;
  if (fs::remove(workshop_, error)) workshop_.clear();
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
