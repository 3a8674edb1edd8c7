// Property-list files: what is read from good and bad ones, what is written, and what a failed write leaves.
#include "phone/foundation/property_list.h"

#include <gtest/gtest.h>

#include "phone/foundation/foundation.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "tests/foundation/temporary_folder.h"

namespace phone {
namespace {

constexpr const char* kStore = "/var/mobile/Library/Preferences/org.quenmark.tavimo.events.plist";

class PropertyListFiles : public testing::Test {
 protected:
  PropertyListFiles() {
    startFoundation({.root = folder_.path()});
    std::filesystem::create_directories(file().parent_path());
  }
  std::filesystem::path file() const { return folder_.path() / (kStore + 1); }

  TemporaryFolder folder_;
  AutoreleasePool pool_;
};

TEST_F(PropertyListFiles, WrittenDictionaryIsReadBackBelowThePhoneRoot) {
  NSMutableDictionary* const written = NSMutableDictionary::dictionary();
  written->setObject("N"_ns, "x-apple-calevent://CAL/\u00fc<&>\U0001F600"_ns);
  ASSERT_TRUE(written->writeToFile(NSString::stringWithUTF8String(kStore), true));
  EXPECT_TRUE(std::filesystem::exists(file()));
  NSMutableDictionary* const read =
      NSMutableDictionary::dictionaryWithContentsOfFile(NSString::stringWithUTF8String(kStore));
  EXPECT_TRUE(read->isEqual(written));
  read->setObject("Y"_ns, "changeable"_ns);
  EXPECT_EQ(read->count(), 2U);
}

}  // namespace
}  // namespace phone
