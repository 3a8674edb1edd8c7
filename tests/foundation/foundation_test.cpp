// Starting Foundation: releases, the phone root, and memory that stays where it is.
#include "phone/foundation/foundation.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include "phone/foundation/log_sink.h"
#include "phone/foundation/phone_root.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_log.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_url.h"
#include "tests/foundation/phone_files.h"
#include "tests/support/heap.h"

namespace phone {
namespace {

TEST(Foundation, ReleaseSetsTheVersionNumberAndAnUnknownOneChangesNothing) {
  for (const auto& [release, version] : {std::pair("7.1", 1047.25), std::pair("8.1", 1141.1),
                                         std::pair("8.4", 1144.17), std::pair("9.3", 1280.25)}) {
    startFoundation({.root = "/phone", .release = release});
    EXPECT_EQ(NSFoundationVersionNumber, version);
    EXPECT_EQ(hostOptions().release, release);
  }
  try {
    startFoundation({.root = "/elsewhere", .release = "6.0"});
    FAIL() << "an unknown release was accepted";
  } catch (const std::invalid_argument& error) {
    EXPECT_STREQ(error.what(), "unknown release \"6.0\": use one of 7.1, 8.1, 8.4, 9.3");
  }
  EXPECT_EQ(NSFoundationVersionNumber, 1280.25);
  EXPECT_EQ(hostOptions().root, "/phone");
}

TEST(Foundation, NamesOnThePhoneLieBelowItsRoot) {
  startFoundation({.root = "/phone"});
  for (const auto& [name, expected] : {
           std::pair("/var/mobile/Library/x.plist", "/phone/var/mobile/Library/x.plist"),
           std::pair("/private/var/mobile/Library/x.plist", "/phone/var/mobile/Library/x.plist"),
           std::pair("/var/mobile", "/phone/var/mobile"),
           std::pair("/var//mobile/./x", "/phone/var/mobile/x"),
           std::pair("/Applications/MobileCal.app/icon@2x.png",
                     "/phone/Applications/MobileCal.app/icon@2x.png"),
           std::pair("/var/mobile/Library/../x", "/phone/var/mobile/x"),
           std::pair("/var/mobile/../../etc/passwd", "/var/mobile/../../etc/passwd"),
           std::pair("/var/mobile-2/x", "/var/mobile-2/x"),
           std::pair("/ApplicationsOld", "/ApplicationsOld"),
           std::pair("/private/tmp/x", "/private/tmp/x"),
           std::pair("/tmp/x", "/tmp/x"),
           std::pair("var/mobile/x", "var/mobile/x"),
           std::pair("", ""),
       }) {
    EXPECT_EQ(pathOnThisMachine(name), expected) << name;
  }
}

class Memory : public PhoneFiles {};

TEST_F(Memory, ThousandRoundsLeaveItWhereItWas) {
  NSMutableDictionary* const written = NSMutableDictionary::dictionary();
  for (int i = 0; i < 50; ++i)
    written->setObject("N"_ns, text("x-apple-calevent://CALENDAR/" + std::to_string(i)));
  setLogKeeping(false);
  int rounds = 0;
  const auto round = [&] {
    const AutoreleasePool pool;
    // Few writes: each waits for the disk.
    const bool isWritten = rounds++ % 20 != 0 || written->writeToFile(name(), true);
    ASSERT_TRUE(isWritten);
    ASSERT_TRUE(NSMutableDictionary::dictionaryWithContentsOfFile(name())->isEqual(written));
    ASSERT_EQ(NSDictionary::dictionaryWithContentsOfFile("/var/mobile/missing.plist"_ns), nullptr);
    ASSERT_NE(NSURL::URLWithString("fantastical2://show?date=2014-3-7"_ns)->absoluteString(), nullptr);
    NSLog("%@ a line"_ns, "TVM:"_ns);
  };
  for (int i = 0; i < 10; ++i) round();
  const std::size_t before = heapInUse();
  for (int i = 0; i < 1000; ++i) round();
  const std::size_t after = heapInUse();
  // No object is smaller than 16 bytes; Foundation's own pools and caches may still grow a little.
  EXPECT_LT(after, before + 16'000);
}

}  // namespace
}  // namespace phone
