// Mapping libraries for phones: addresses, names and rights, without running any code.
#include "device/emulated/image.h"

#include <cstring>
#include <gtest/gtest.h>

#include "tests/device/library_builder.h"

namespace device {
namespace {

using namespace std::string_literals;

int something = 0;

void* offered(const std::string& name) { return name == "name" ? &something : nullptr; }

Bytes bytesOf(const std::string& text) { return std::as_bytes(std::span(text)); }

std::uintptr_t wordAt(const Image& image, const char* name) {
  std::uintptr_t word = 0;
  std::memcpy(&word, image.address(name), sizeof(word));
  return word;
}

TEST(Image, HoldsAdjustedAddressesAndWhatNamesStandFor) {
  LibraryBuilder builder;
  // The first word of the data is an address; a name and, 8 bytes behind it, a weak one that nobody offers
  // follow.
  builder.rebases = "\x11\x21\x00\x51"s;
  builder.binds = "\x11\x40_name\0\x60\x04\x71\x08\x90\x60\x00\x41_weak\0\x90"s;
  builder.exports =
      "\x00\x03_a\0\x0e_b\0\x13_c\0\x18\x03\x00\x80\x20\x00\x03\x00\x88\x20\x00\x03\x00\x90\x20\x00"s;
  const std::string file = builder.build();
  const Image image(bytesOf(file), offered);
  const auto data = reinterpret_cast<std::uintptr_t>(image.address("a"));
  EXPECT_EQ(wordAt(image, "a"), data - 0x1000) << "an address of 0 is the library's start";
  EXPECT_EQ(wordAt(image, "b"), reinterpret_cast<std::uintptr_t>(&something) + 4);
  EXPECT_EQ(wordAt(image, "c"), 0U);
  EXPECT_EQ(image.address("d"), nullptr);
  EXPECT_TRUE(image.holds(data));
  EXPECT_FALSE(image.holds(reinterpret_cast<std::uintptr_t>(&something)));
}

TEST(Image, Of32BitsIsAdjustedInItsOwnWidth) {
  LibraryBuilder builder(Processor::kArm32);
  builder.rebases = "\x11\x21\x00\x51"s;
  builder.exports = "\x00\x01_a\0\x06\x03\x00\x80\x20\x00"s;
  const std::string file = builder.build();
  const Image image(bytesOf(file), offered, Processor::kArm32);
  const auto data = reinterpret_cast<std::uintptr_t>(image.address("a"));
  std::array<std::uint32_t, 2> words{};
  std::memcpy(words.data(), image.address("a"), sizeof(words));
  EXPECT_EQ(words[0], static_cast<std::uint32_t>(data - 0x1000));
  EXPECT_EQ(words[1], 0U) << "what lies behind a pointer of four bytes is left alone";
}

TEST(Image, NamesThatNobodyOffersAreSaid) {
  LibraryBuilder builder;
  builder.binds = "\x11\x40_missing\0\x71\x08\x90"s;
  const std::string file = builder.build();
  try {
    const Image image(bytesOf(file), offered);
    FAIL() << "it was loaded";
  } catch (const BadLibrary& reason) {
    EXPECT_STREQ(reason.what(),
                 "it asks for missing of /usr/lib/libSystem.B.dylib, and nobody here offers that");
  }
}

TEST(ImageDeathTest, SegmentsHaveTheirOwnRights) {
  LibraryBuilder builder;
  builder.exports = "\x00\x01_a\0\x06\x02\x00\x00\x00"s;
  const std::string file = builder.build();
  const Image image(bytesOf(file), offered);
  auto* const code = static_cast<volatile char*>(image.address("a"));
  ASSERT_NE(code, nullptr);
  EXPECT_EQ(*code, 0);
  EXPECT_DEATH(*code = 1, "");
}

}  // namespace
}  // namespace device
