// A phone's folder while it is filled: whoever looks at it finds a whole phone or none.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace phone {

class PhoneInTheMaking {
 public:
  /// Makes the folder with all above it, unless it is there, and a workshop in it. Throws
  /// std::filesystem::filesystem_error.
  explicit PhoneInTheMaking(std::filesystem::path root);
  /// Takes everything away that was made, unless the phone was finished.
  ~PhoneInTheMaking();
  PhoneInTheMaking(const PhoneInTheMaking&) = delete;
  PhoneInTheMaking& operator=(const PhoneInTheMaking&) = delete;

  /// What stands for the phone's "/" until it is finished.
  const std::filesystem::path& workshop() const { return workshop_; }

  /// Moves what is in the workshop to its place, in that order: the last of the names makes it a phone.
  /// Throws std::filesystem::filesystem_error.
  void finish(const std::vector<std::string>& names);

 private:
  void takeAway();

  std::filesystem::path root_;
  std::filesystem::path workshop_;
  /// From the topmost down.
  std::vector<std::filesystem::path> madeFolders_;
  std::vector<std::filesystem::path> moved_;
};

}  // namespace phone
