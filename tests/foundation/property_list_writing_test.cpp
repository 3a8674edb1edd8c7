// Writing property-list files: everything comes back as it was, and a write that fails changes nothing.
#include <limits>
#include <sys/resource.h>
#include <unistd.h>

#include "phone/foundation/property_list.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_number.h"
#include "platform/foundation/ns_url.h"
#include "tests/foundation/phone_files.h"

namespace phone {
namespace {

NSObject* data(const std::string& bytes) {
  return objc::sendToClass<"NSData", "dataWithBytes:length:", NSObject*>(
      static_cast<const void*>(bytes.data()), NSUInteger{bytes.size()});
}

class WritingPropertyLists : public PhoneFiles {
 protected:
  /// A dictionary with one entry.
  static NSMutableDictionary* entry(NSObject* key, NSObject* value) {
    NSMutableDictionary* const made = NSMutableDictionary::dictionary();
    made->setObject(value, key);
    return made;
  }
  static NSMutableDictionary* large() { return entry("text"_ns, text(std::string(100'000, 'x'))); }
};

TEST_F(WritingPropertyLists, EveryValueComesBackAsItWas) {
  using Whole = std::numeric_limits<NSInteger>;
  NSMutableArray* const values = NSMutableArray::array();
  for (const char* const utf8 : {"", " ", "plain", "ü", "日本語", "עברית", "😀", "e\u0301", "<&>\"'", "]]>",
                                 "&amp;", "a\nb\tc\r\n", "  padded  "}) {
    values->addObject(text(utf8));
  }
  for (const NSInteger number : {NSInteger{0}, NSInteger{1}, NSInteger{-5}, Whole::min(), Whole::max()}) {
    values->addObject(NSNumber::numberWithInteger(number));
  }
  for (const double number : {0.1, 1.0 / 3, 1e300, -2.5, 3.0, 5e-324}) {
    values->addObject(NSNumber::numberWithDouble(number));
  }
  values->addObject(NSNumber::numberWithBool(true));
  values->addObject(NSNumber::numberWithBool(false));
  for (const double seconds : {0.0, 415879072.0, -1e9}) {
    values->addObject(NSDate::dateWithTimeIntervalSinceReferenceDate(seconds));
  }
  values->addObject(data(""));
  values->addObject(data(std::string("\0\xFFz", 3)));
  values->addObject(NSArray::array());
  values->addObject(NSMutableDictionary::dictionary());
  values->addObject(entry("k<&>ü😀"_ns, entry(""_ns, "inner"_ns)));
  ASSERT_TRUE(values->writeToFile(name(), true));
  NSArray* const read = NSArray::arrayWithContentsOfFile(name());
  ASSERT_EQ(read->count(), values->count());
  for (NSUInteger i = 0; i < values->count(); ++i) {
    EXPECT_TRUE(read->objectAtIndex(i)->isEqual(values->objectAtIndex(i)))
        << values->objectAtIndex(i)->description()->UTF8String();
  }
  EXPECT_EQ(filesInFolder(), "store.plist ");
}

TEST_F(WritingPropertyLists, FilesAreXmlAndTheSameForTheSameDictionary) {
  NSMutableDictionary* const one = NSMutableDictionary::dictionary();
  one->setObject(NSNumber::numberWithBool(true), "b"_ns);
  one->setObject(NSNumber::numberWithInteger(1), "a"_ns);
  one->setObject(NSNumber::numberWithFloat(1), "c"_ns);
  // Not atomically is no excuse for half a file.
  ASSERT_TRUE(one->writeToFile(name(), false));
  EXPECT_EQ(bytesOf(file()),
            R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>a</key>
	<integer>1</integer>
	<key>b</key>
	<true/>
	<key>c</key>
	<real>1</real>
</dict>
</plist>
)");
}

TEST_F(WritingPropertyLists, WhatNoFileCanHoldFailsAndLeavesTheOldFile) {
  struct Case {
    const char* what;
    NSObject* root;
  };
  NSMutableArray* const itself = NSMutableArray::array();
  itself->addObject(itself);
  NSMutableArray* deep = NSMutableArray::array();
  for (int i = 0; i < 5000; ++i) {
    NSMutableArray* const outer = NSMutableArray::array();
    outer->addObject(deep);
    deep = outer;
  }
  const auto unsignedNumber = objc::sendToClass<NSNumber, "numberWithUnsignedLongLong:", NSObject*>(
      std::numeric_limits<unsigned long long>::max());
  NSString* const withZero = NSString::stringWithFormat("a%Cb"_ns, 0);
  ASSERT_EQ(withZero->length(), 3U);
  for (const auto& [what, root] : {
           Case{"a key that is no text", entry(NSNumber::numberWithInteger(1), "x"_ns)},
           Case{"an object of another kind", entry("url"_ns, NSURL::URLWithString("http://x/"_ns))},
           Case{"a list inside itself", itself},
           Case{"a list nested too deeply", deep},
           Case{"a zero character", entry("text"_ns, withZero)},
           Case{"a zero character in a key", entry(withZero, "x"_ns)},
           Case{"half a character", entry("text"_ns, text("a😀")->substringToIndex(2))},
           Case{"a number beyond the signed range", entry("number"_ns, unsignedNumber)},
           Case{"a date of the far future",
                entry("date"_ns, NSDate::dateWithTimeIntervalSinceReferenceDate(1e12))},
       }) {
    writeBytes(file(), "the old content");
    EXPECT_FALSE((objc::send<"writeToFile:atomically:", bool>(root, name(), true))) << what;
    EXPECT_EQ(bytesOf(file()), "the old content") << what;
    EXPECT_EQ(filesInFolder(), "store.plist ") << what;
  }
  itself->removeAllObjects();
}

TEST_F(WritingPropertyLists, FullDiskLeavesTheOldFileAndTheProcess) {
  NSMutableDictionary* const old = entry("old"_ns, "content"_ns);
  ASSERT_TRUE(old->writeToFile(name(), true));
  rlimit before{};
  ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
  const rlimit small{10'000, before.rlim_max};
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
  EXPECT_FALSE(large()->writeToFile(name(), true));
  ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
  EXPECT_TRUE(NSDictionary::dictionaryWithContentsOfFile(name())->isEqual(old));
  EXPECT_EQ(filesInFolder(), "store.plist ");
  EXPECT_TRUE(large()->writeToFile(name(), true)) << "once there is room again";
}

TEST_F(WritingPropertyLists, PlacesThatCannotBeWrittenLeaveTheOldFile) {
  NSMutableDictionary* const old = entry("old"_ns, "content"_ns);
  ASSERT_TRUE(old->writeToFile(name(), true));
  EXPECT_FALSE(large()->writeToFile(text(std::string(kFolder) + "/missing/store.plist"), true));
  EXPECT_FALSE(large()->writeToFile(text(kFolder), true)) << "a folder is in the way";
  EXPECT_FALSE(large()->writeToFile(nullptr, true));

  // The administrator may write everywhere, so as somebody else.
  constexpr uid_t kNobody = 65534;
  std::filesystem::permissions(folder(), std::filesystem::perms(0555));
  for (auto parent = folder().parent_path(); parent.string().size() > 1 && parent != "/tmp";
       parent = parent.parent_path()) {
    std::filesystem::permissions(parent, std::filesystem::perms(0005), std::filesystem::perm_options::add);
  }
  const uid_t user = geteuid();
  ASSERT_EQ(user == 0 ? seteuid(kNobody) : 0, 0);
  EXPECT_FALSE(large()->writeToFile(name(), true)) << "the folder is read-only";
  ASSERT_EQ(user == 0 ? seteuid(user) : 0, 0);
  std::filesystem::permissions(folder(), std::filesystem::perms(0755));
  EXPECT_TRUE(NSDictionary::dictionaryWithContentsOfFile(name())->isEqual(old));
  EXPECT_EQ(filesInFolder(), "store.plist ");
}

TEST_F(WritingPropertyLists, CallersFromCppLearnFileAndReason) {
  const auto reasonOf = [](const auto& action) -> std::string {
    try {
      action();
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "no failure";
  };
  EXPECT_EQ(reasonOf([&] { readPropertyList(file()); }),
            "cannot read " + file().string() + ": No such file or directory");
  writeBytes(file(), "words");
  EXPECT_EQ(reasonOf([&] { readPropertyList(file()); }),
            "cannot read " + file().string() + ": it is no property list");
  EXPECT_EQ(reasonOf([&] { writePropertyList(entry(NSNumber::numberWithInteger(1), "x"_ns), file()); }),
            "cannot write " + file().string() + ": a dictionary has a key that is no text");
  EXPECT_EQ(
      reasonOf([&] { writePropertyList(large(), folder() / "missing" / "store.plist"); }),
      "cannot write " + (folder() / "missing" / "store.plist").string() + ": No such file or directory");
}

}  // namespace
}  // namespace phone
