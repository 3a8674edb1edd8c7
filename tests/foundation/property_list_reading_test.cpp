// Reading property-list files: XML and binary ones as phones and other programs write them, and what is none.
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_number.h"
#include "tests/foundation/binary_list.h"
#include "tests/foundation/phone_files.h"

namespace phone {
namespace {

const std::string kHead =
    R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
)";

std::string repeated(const std::string& part, int times) {
  std::string all;
  for (int i = 0; i < times; ++i) all += part;
  return all;
}

/// An array in an array and so on, in XML.
std::string nestedXml(int depth) {
  return kHead + repeated("<array>", depth) + repeated("</array>", depth) + "</plist>";
}

/// The same in binary: every array holds the next one `copies` times, the last one is empty.
std::string nestedBinary(std::uint64_t depth, int copies) {
  std::vector<std::string> objects;
  for (std::uint64_t i = 1; i < depth; ++i) {
    objects.push_back(container(0xA0 + copies, std::vector<std::uint64_t>(copies, i)));
  }
  objects.push_back(container(0xA0, {}));
  return binaryList(objects);
}

NSUInteger depthOf(NSArray* array) {
  NSUInteger depth = 1;
  for (; array->count() == 1; array = static_cast<NSArray*>(array->objectAtIndex(0))) ++depth;
  return depth;
}

class ReadingPropertyLists : public PhoneFiles {
 protected:
  template <typename View = NSDictionary>
  View* dictionary(const std::string& bytes) {
    writeBytes(file(), bytes);
    return static_cast<View*>(View::dictionaryWithContentsOfFile(name()));
  }
  NSArray* array(const std::string& bytes) {
    writeBytes(file(), bytes);
    return NSArray::arrayWithContentsOfFile(name());
  }
};

TEST_F(ReadingPropertyLists, EveryKindOfValueInXml) {
  NSDictionary* const read = dictionary(kHead + R"(<!-- written by hand -->
<dict>
  <key>text</key><string>a &lt;b&gt; &amp; &#252; 😀</string>
  <key>raw</key><string><![CDATA[<dict>]]></string>
  <key>empty</key><string/>
  <key>on</key><true/>
  <key>off</key><false/>
  <key>whole</key><integer>-17</integer>
  <key>real</key><real>0.5</real>
  <key>date</key><date>2014-03-07T10:00:00Z</date>
  <key>data</key><data>AAFhYmM=</data>
  <key>array</key><array><string>x</string><dict/></array>
</dict></plist>)");
  ASSERT_NE(read, nullptr);
  EXPECT_EQ(read->count(), 10U);
  const auto value = [&](const char* key) { return read->objectForKey(text(key)); };
  EXPECT_TRUE(value("text")->isEqual(text("a <b> & ü 😀")));
  EXPECT_TRUE(value("raw")->isEqual("<dict>"_ns));
  EXPECT_TRUE(value("empty")->isEqual(""_ns));
  EXPECT_TRUE(value("on")->isEqual(NSNumber::numberWithBool(true)));
  EXPECT_TRUE(value("off")->isEqual(NSNumber::numberWithBool(false)));
  EXPECT_EQ(static_cast<NSNumber*>(value("whole"))->integerValue(), -17);
  EXPECT_EQ(static_cast<NSNumber*>(value("real"))->doubleValue(), 0.5);
  EXPECT_EQ(static_cast<NSDate*>(value("date"))->timeIntervalSinceReferenceDate(), 415879200.0);
  EXPECT_EQ((objc::send<"length", NSUInteger>(value("data"))), 5U);
  EXPECT_EQ(static_cast<NSArray*>(value("array"))->count(), 2U);
}

TEST_F(ReadingPropertyLists, EveryKindOfValueInBinary) {
  using std::string_literals::operator""s;
  NSArray* const read = array(binaryList({
      container(0xA8, {1, 2, 3, 4, 5, 6, 7, 8}),
      "\x53"
      "abc",                                    // ASCII text
      "\x63\x00\xFC\xD8\x3D\xDE\x00"s,          // UTF-16 text: u with diaeresis, a face
      "\x09",                                   // true
      "\x13\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xEF",   // -17
      "\x23\x3F\xE0\x00\x00\x00\x00\x00\x00"s,  // 0.5
      "\x33\x41\xB8\xC9\xCF\xA0\x00\x00\x00"s,  // 415879072 seconds
      "\x43\x00\x01\x61"s,                      // data
      container(0xD1, {1, 3}),
  }));
  ASSERT_NE(read, nullptr);
  ASSERT_EQ(read->count(), 8U);
  EXPECT_TRUE(read->objectAtIndex(0)->isEqual("abc"_ns));
  EXPECT_TRUE(read->objectAtIndex(1)->isEqual(text("ü😀")));
  EXPECT_TRUE(read->objectAtIndex(2)->isEqual(NSNumber::numberWithBool(true)));
  EXPECT_EQ(static_cast<NSNumber*>(read->objectAtIndex(3))->integerValue(), -17);
  EXPECT_EQ(static_cast<NSNumber*>(read->objectAtIndex(4))->doubleValue(), 0.5);
  EXPECT_EQ(static_cast<NSDate*>(read->objectAtIndex(5))->timeIntervalSinceReferenceDate(), 415879072.0);
  EXPECT_EQ((objc::send<"length", NSUInteger>(read->objectAtIndex(6))), 3U);
  EXPECT_TRUE(static_cast<NSDictionary*>(read->objectAtIndex(7))->objectForKey("abc"_ns) != nullptr);
}

TEST_F(ReadingPropertyLists, MutableClassesGiveWhatCanBeChangedAtEveryLevel) {
  const std::string bytes = kHead + "<dict><key>list</key><array><string>x</string></array></dict></plist>";
  auto* const changeable = dictionary<NSMutableDictionary>(bytes);
  changeable->setObject("y"_ns, "new"_ns);
  static_cast<NSMutableArray*>(changeable->objectForKey("list"_ns))->addObject("y"_ns);
  EXPECT_EQ(static_cast<NSArray*>(changeable->objectForKey("list"_ns))->count(), 2U);
  NSDictionary* const fixed = dictionary(bytes);
  EXPECT_FALSE(fixed->isKindOfClass(objc::classOf<NSMutableDictionary>()));
  EXPECT_FALSE(fixed->objectForKey("list"_ns)->isKindOfClass(objc::classOf<NSMutableArray>()));
}

TEST_F(ReadingPropertyLists, BadFilesAreNone) {
  using std::string_literals::operator""s;
  const std::string good = kHead + "<dict><key>a</key><string>b</string></dict></plist>";
  const std::string goodBinary = binaryList({container(0xD1, {1, 1}),
                                             "\x51"
                                             "a"});
  ASSERT_NE(dictionary(good), nullptr);
  ASSERT_NE(dictionary(goodBinary), nullptr);
  struct Bad {
    const char* what;
    std::string bytes;
  };
  const std::vector<Bad> table = {
      {"empty", ""},
      {"only the head", kHead},
      {"truncated XML", good.substr(0, good.size() - 16)},
      {"XML cut inside a text", good.substr(0, good.find("b</str"))},
      {"truncated binary", goodBinary.substr(0, goodBinary.size() - 5)},
      {"only the binary mark", "bplist00"},
      {"binary garbage", "bplist00" + std::string(100, '\xFF')},
      {"zero bytes", std::string(4096, '\0')},
      {"a picture", "\x89PNG\r\n\x1A\n\0\0\0\rIHDR"s},
      {"plain words", "no property list at all"},
      {"another kind of XML", "<?xml version=\"1.0\"?><html><body/></html>"},
      {"a text at the root", kHead + "<string>a</string></plist>"},
      {"a text that is not UTF-8", kHead + "<dict><key>a</key><string>\xFF\xFE</string></dict></plist>"},
      {"a reference to nowhere", binaryList({container(0xD1, {1, 99}),
                                             "\x51"
                                             "a"})},
      {"a list inside itself", binaryList({container(0xA1, {0})})},
      {"offsets beyond the file", goodBinary.substr(0, goodBinary.size() - 8) + std::string(8, '\x7F')},
      {"a text longer than the file",
       binaryList({container(0xA1, {1}), "\x5F\x13\x7F\xFF\xFF\xFF\xFF\xFF\xFF\xFF"})},
      {"declared entities", "<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><dict/></plist>"},
      {"XML nested too deeply", nestedXml(200'000)},
      {"XML nested too deeply and never closed", kHead + repeated("<array>", 1'000'000)},
      {"binary nested too deeply", nestedBinary(200'000, 1)},
      {"forty levels of arrays that double", nestedBinary(40, 2)},
  };
  for (const Bad& bad : table) {
    EXPECT_EQ(dictionary(bad.bytes), nullptr) << bad.what;
    EXPECT_EQ(dictionary<NSMutableDictionary>(bad.bytes), nullptr) << bad.what;
    EXPECT_EQ(array(bad.bytes), nullptr) << bad.what;
  }
  EXPECT_EQ(array(good), nullptr) << "a dictionary is no array";
  EXPECT_EQ(dictionary(nestedXml(1)), nullptr) << "an array is no dictionary";
}

TEST_F(ReadingPropertyLists, WhatIsNoFileIsNone) {
  EXPECT_EQ(NSDictionary::dictionaryWithContentsOfFile(name()), nullptr) << "missing";
  EXPECT_EQ(NSDictionary::dictionaryWithContentsOfFile(text(kFolder)), nullptr) << "a folder";
  EXPECT_EQ(NSArray::arrayWithContentsOfFile("/dev/zero"_ns), nullptr) << "a device";
  EXPECT_EQ(NSArray::arrayWithContentsOfFile(""_ns), nullptr);
  EXPECT_EQ(NSArray::arrayWithContentsOfFile(nullptr), nullptr);
  writeBytes(file(), "");
  std::filesystem::resize_file(file(), std::uintmax_t{1} << 40);
  EXPECT_EQ(NSDictionary::dictionaryWithContentsOfFile(name()), nullptr) << "a hole of a terabyte";
}

TEST_F(ReadingPropertyLists, FiveHundredLevelsAreRead) {
  EXPECT_EQ(depthOf(array(nestedXml(500))), 500U);
  EXPECT_EQ(depthOf(array(nestedBinary(500, 1))), 500U);
}

TEST_F(ReadingPropertyLists, TenMegabytesAreRead) {
  constexpr int kEntries = 100'000;
  std::string entries = kHead + "<dict>";
  for (int i = 0; i < kEntries; ++i) {
    entries += "<key>x-apple-calevent://CALENDAR/" + std::to_string(i) +
               "</key><string>a text that makes the file reach its ten megabytes</string>\n";
  }
  entries += "</dict></plist>";
  ASSERT_GT(entries.size(), 10'000'000U);
  NSDictionary* const read = dictionary(entries);
  EXPECT_EQ(read->count(), NSUInteger{kEntries});
  NSArray* const one = array(kHead + "<array><string>" + repeated(std::string(1000, 'x'), 10'000) +
                             "</string></array></plist>");
  EXPECT_EQ(static_cast<NSString*>(one->objectAtIndex(0))->length(), 10'000'000U);
}

}  // namespace
}  // namespace phone
