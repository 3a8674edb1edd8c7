// A phone in a temporary folder, with Foundation started on it, for tests of files.
#pragma once

#include <gtest/gtest.h>
#include <string>

#include "phone/foundation/foundation.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/ns_string.h"
#include "tests/foundation/temporary_folder.h"

namespace phone {

inline NSString* text(const std::string& utf8) { return NSString::stringWithUTF8String(utf8.c_str()); }

class PhoneFiles : public testing::Test {
 protected:
  static constexpr const char* kFolder = "/var/mobile/Library/Preferences";

  PhoneFiles() {
    startFoundation({.root = folder_.path()});
    std::filesystem::create_directories(folder());
  }

  /// The preferences folder on this machine.
  std::filesystem::path folder() const { return folder_.path() / (kFolder + 1); }
  std::filesystem::path file() const { return folder() / "store.plist"; }
  /// The file's name on the phone.
  static NSString* name() { return text(std::string(kFolder) + "/store.plist"); }

  /// The names of all files in the preferences folder, each with a space behind it.
  std::string filesInFolder() const {
    std::string names;
    for (const auto& entry : std::filesystem::directory_iterator(folder())) {
      names += entry.path().filename().string() + ' ';
    }
    return names;
  }

 private:
  TemporaryFolder folder_;
  AutoreleasePool pool_;
};

}  // namespace phone
