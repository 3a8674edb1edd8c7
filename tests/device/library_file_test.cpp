// Reading libraries for phones: what a damaged or foreign one is refused for, and what the loader's
// instructions mean.
#include "device/emulated/library_file.h"

#include <functional>
#include <gtest/gtest.h>

#include "device/emulated/fixups.h"
#include "device/emulated/symbol_table.h"
#include "tests/device/library_builder.h"

namespace device {
namespace {

using namespace std::string_literals;

Bytes bytesOf(const std::string& text) { return std::as_bytes(std::span(text)); }

/// Everything that is read of a library before it is mapped.
void readWhole(const std::string& file, Processor processor) {
  const LibraryFile library = readLibrary(bytesOf(file), processor);
  rebasePlaces(library);
  bindings(library);
  exportedAddress(library, "_name");
  SymbolTable{library};
}

std::string refusalOf(const std::string& file, Processor processor = Processor::kArm64) {
  try {
    readWhole(file, processor);
  } catch (const BadLibrary& reason) {
    return reason.what();
  }
  return "not refused";
}

// Segment 1, the data, from its start on.
const std::string kPlace = "\x71\x00"s;
const std::string kRebasePlace = "\x11\x21\x00"s;
const std::string kName = "\x40_name\0"s;

TEST(LibraryFile, WhatIsWrongIsNamed) {
  struct Damage {
    const char* refusal;
    std::function<void(LibraryBuilder&)> apply;
  };
  const std::vector<Damage> damages = {
      {"it is for x86-64; one for ", [](auto& library) { library.processor = 0x01000007; }},
      {"it is for x86; one for ", [](auto& library) { library.processor = 7; }},
      {"its addresses are not as wide", [](auto& library) { library.magic ^= 0xfeedface ^ 0xfeedfacf; }},
      {"it describes a segment in the form of a processor",
       [](auto& library) { library.furtherCommand = library.is32Bit ? 0x19 : 0x1; }},
      {"it is no library", [](auto& library) { library.magic = 0x464c457f; }},
      {"it is a file of kind 2", [](auto& library) { library.kind = 2; }},
      {"it is for iOS 11 and later", [](auto& library) { library.minimumRelease = 0xb0000; }},
      {"it is encrypted", [](auto& library) { library.encryption = 1; }},
      {"load command 0x80000034", [](auto& library) { library.furtherCommand = 0x80000034; }},
      {"__T?XT lies beyond the end",
       [](auto& library) { library.segments[0].name = "__T\nXT", library.segments[0].offset = 1 << 20; }},
      {"it has no segments", [](auto& library) { library.segments.clear(), library.initializersSize = 0; }},
      {"the segments __TEXT and __DATA overlap", [](auto& library) { library.segments[1].address = 0; }},
      {"__TEXT lies beyond the end", [](auto& library) { library.segments[0].offset = 1 << 20; }},
      {"__TEXT lies beyond the end", [](auto& library) { library.segments[0].fileSize = ~0ULL; }},
      {"__DATA has an impossible place", [](auto& library) { library.segments[1].address = ~0ULL << 12; }},
      {"__DATA has an impossible place", [](auto& library) { library.segments[1].address = 0x1010; }},
      {"__DATA has an impossible place",
       [](auto& library) {
         library.segments[1].fileSize = library.segments[1].size = 1, library.segments[1].size = 0;
       }},
      {"__DATA can be written and executed", [](auto& library) { library.segments[1].protection = 7; }},
      {"initialisers lies outside", [](auto& library) { library.initializers = 0x3000; }},
      {"initialisers lies outside", [](auto& library) { library.initializersSize = 10; }},
      {"initialisers lies outside", [](auto& library) { library.initializersSize = ~0ULL - 7; }},
      {"addresses to adjust has an unknown instruction 15", [](auto& library) { library.rebases = "\xf0"; }},
      {"addresses to adjust writes outside", [](auto& library) { library.rebases = "\x11\x51"s; }},
      {"addresses to adjust writes outside", [](auto& library) { library.rebases = "\x11\x20\x00\x51"s; }},
      {"addresses to adjust writes outside",
       [](auto& library) { library.rebases = kRebasePlace + "\x60\xff\xff\x7f"; }},
      {"addresses to adjust names a segment 9", [](auto& library) { library.rebases = "\x29\x00"s; }},
      {"addresses to adjust holds something other", [](auto& library) { library.rebases = "\x12"; }},
      {"addresses to adjust runs past its end", [](auto& library) { library.rebases = "\x21\x80"; }},
      {"number of more than 64 bits",
       [](auto& library) { library.rebases = "\x21" + std::string(12, '\x80'); }},
      // Steps back to where it was, for ever.
      {"more places than any plug-in",
       [](auto& library) {
         const std::string back =
             library.is32Bit ? "\xfc\xff\xff\xff\x0f" : "\xf8\xff\xff\xff\xff\xff\xff\xff\xff\x01";
         library.rebases = kRebasePlace + "\x80\xff\xff\xff\xff\x7f" + back;
       }},
      {"names to look up writes outside", [](auto& library) { library.binds = kName + "\x90"; }},
      {"names to look up runs past its end", [](auto& library) { library.binds = "\x40_name"; }},
      {"names to look up holds a name that does not end",
       [](auto& library) { library.binds = "\x40" + std::string(5000, 'n') + "\0"s; }},
      {"more segments than any plug-in",
       [](auto& library) {
         for (std::uint64_t i = 3; i < 20; ++i)
           library.segments.push_back({.name = "more", .address = i << 12});
       }},
      {"more initialisers than any plug-in",
       [](auto& library) {
         library.segments[2].size = library.initializersSize = 1 << 20, library.initializers = 0x2000;
       }},
      {"names to look up has an unknown instruction 13", [](auto& library) { library.binds = "\xd0"; }},
      {"names to look up later writes outside",
       [](auto& library) { library.lazyBinds = "\x00"s + kName + "\x90"; }},
      {"names on offer runs past its end", [](auto& library) { library.exports = "\x00\x01_name\x00\x40"s; }},
      {"names on offer runs past its end", [](auto& library) { library.exports = "\x7f"; }},
  };
  for (const Processor processor : {Processor::kArm64, Processor::kArm32}) {
    EXPECT_EQ(refusalOf(LibraryBuilder(processor).build(), processor), "not refused");
    for (const Damage& damage : damages) {
      LibraryBuilder library(processor);
      damage.apply(library);
      const std::string refusal = refusalOf(library.build(), processor);
      EXPECT_NE(refusal.find(damage.refusal), std::string::npos)
          << (library.is32Bit ? "32" : "64") << " bits, wanted: " << damage.refusal << "\nsaid: " << refusal;
    }
  }
}

TEST(LibraryFile, ALibraryThatIsCutOffAnywhereIsRefused) {
  for (const Processor processor : {Processor::kArm64, Processor::kArm32}) {
    LibraryBuilder builder(processor);
    builder.rebases = kRebasePlace + "\x51";
    builder.exports = "\x00\x00"s;
    const std::string whole = builder.build();
    ASSERT_EQ(refusalOf(whole, processor), "not refused");
    for (std::size_t size = 0; size < whole.size(); ++size) {
      EXPECT_NE(refusalOf(whole.substr(0, size), processor), "not refused")
          << size << " of " << whole.size() << " bytes";
    }
  }
}

TEST(LibraryFile, OfSeveralLibrariesTheOneForTheProcessorIsTaken) {
  const auto big = [](std::uint32_t number) {
    return std::string{static_cast<char>(number >> 24), static_cast<char>(number >> 16),
                       static_cast<char>(number >> 8), static_cast<char>(number)};
  };
  const auto fat = [&](std::uint32_t processor, std::uint32_t size) {
    const std::string first = big(12) + big(9) + big(48) + big(size) + big(0);
    return big(0xcafebabe) + big(2) + first + big(processor) + big(0) + big(48) + big(size) + big(0);
  };
  LibraryBuilder builder;
  const std::string slice = builder.build();
  const auto size = static_cast<std::uint32_t>(slice.size());
  EXPECT_TRUE(isPhoneLibrary(bytesOf(fat(0x0100000c, size))));
  EXPECT_EQ(readLibrary(bytesOf(fat(0x0100000c, size) + slice)).libraries, builder.libraries);
  EXPECT_EQ(refusalOf(fat(0x0100000c, size) + slice, Processor::kArm32),
            "it is for 64-bit ARM; one for 32-bit ARM is wanted");
  EXPECT_EQ(refusalOf(fat(7, size) + slice),
            "it holds libraries for 32-bit ARM, x86; one for 64-bit ARM is wanted");
  EXPECT_EQ(refusalOf(fat(0x0100000c, size + 1) + slice).find("the library for 64-bit ARM lies beyond"), 0U);
  EXPECT_EQ(refusalOf(big(0xcafebabe) + big(3'000'000)).find("it claims to hold"), 0U);
  EXPECT_FALSE(
      isPhoneLibrary(bytesOf("\x7f"
                             "ELF and so on")));
}

TEST(LibraryFile, TheLoadersInstructionsAreFollowed) {
  LibraryBuilder builder;
  // Two in a row; one after 16 bytes more; two with a gap of 8; one and on by 24; two.
  builder.rebases = kRebasePlace + "\x52\x30\x10\x51\x80\x02\x08\x70\x18\x60\x02\x00\xff"s;
  // A weak name twice, with 32 bytes between; an ordinary one of library 1 with an addend; by the list for
  // later.
  builder.binds = "\x11\x41_weak\0\x51"s + kPlace + "\xa0\x20\x90" + kName + "\x60\x7f\xb1\xc0\x02\x08\x00"s;
  builder.lazyBinds = "\x71\x40\x11\x40_later\0\x90\x00"s;
  const std::string file = builder.build();
  const LibraryFile library = readLibrary(bytesOf(file));
  EXPECT_EQ(rebasePlaces(library),
            (std::vector<std::uint64_t>{0x1000, 0x1008, 0x1020, 0x1028, 0x1038, 0x1048, 0x1068, 0x1070}));
  std::string found;
  for (const Binding& binding : bindings(library)) {
    found += std::to_string(binding.place - 0x1000) + " " + std::string(binding.name) + " " +
             std::to_string(binding.library) + " " + std::to_string(binding.addend) +
             (binding.isWeak ? " weak\n" : "\n");
  }
  EXPECT_EQ(
      found,
      "0 _weak 1 0 weak\n40 _weak 1 0 weak\n48 _name 1 -1\n64 _name 1 -1\n80 _name 1 -1\n64 _later 1 0\n");
}

TEST(LibraryFile, TheLoadersInstructionsCountIn32BitAddresses) {
  LibraryBuilder builder(Processor::kArm32);
  // Two in a row; one after another; one and back by 12 bytes, as a step forward past the end of the
  // addresses.
  builder.rebases = kRebasePlace + "\x52\x41\x51\x70\xf4\xff\xff\xff\x0f\x51"s;
  builder.binds = "\x11"s + kName + "\x51" + kPlace + "\xb1\xc0\x02\x04\x00"s;
  builder.initializersSize = 12;
  const std::string file = builder.build();
  const LibraryFile library = readLibrary(bytesOf(file), Processor::kArm32);
  EXPECT_EQ(rebasePlaces(library), (std::vector<std::uint64_t>{0x1000, 0x1004, 0x100c, 0x1010, 0x1008}));
  std::vector<std::uint64_t> places;
  for (const Binding& binding : bindings(library)) places.push_back(binding.place);
  EXPECT_EQ(places, (std::vector<std::uint64_t>{0x1000, 0x1008, 0x1010}));
  EXPECT_EQ(library.initializers, (std::vector<std::uint64_t>{0x1000, 0x1004, 0x1008}));
}

TEST(LibraryFile, OfferedNamesAreFound) {
  LibraryBuilder builder;
  // "_ab" at 0x1234, "_abc" at 0x40, "_b" offered on behalf of another library; each node with its place.
  const std::string root = "\x00\x01_\x00\x05"s;  // 0
  const std::string underscore =
      "\x00\x02"
      "ab\x00\x0e"
      "b\x00\x1a"s;  // 5
  const std::string ab =
      "\x03\x00\xb4\x24\x01"
      "c\x00\x16"s;                             // 14
  const std::string abc = "\x02\x00\x40\x00"s;  // 22
  const std::string b = "\x01\x08\x00"s;        // 26
  builder.exports = root + underscore + ab + abc + b;
  const std::string file = builder.build();
  const LibraryFile library = readLibrary(bytesOf(file));
  EXPECT_EQ(exportedAddress(library, "_ab"), 0x1234U);
  EXPECT_EQ(exportedAddress(library, "_abc"), 0x40U);
  EXPECT_EQ(exportedAddress(library, "_abcd"), kNoAddress);
  EXPECT_EQ(exportedAddress(library, "_a"), kNoAddress);
  EXPECT_EQ(exportedAddress(library, "_"), kNoAddress);
  EXPECT_THROW(exportedAddress(library, "_b"), BadLibrary);
}

TEST(LibraryFile, OfferedNamesMayEndWithAnEdgeOfNoCharacters) {
  LibraryBuilder builder;
  // "_a" at 0x40 through such an edge, beside "_ab" at 0x50; another leads back to where it starts.
  builder.exports =
      "\x00\x01_a\x00\x06"s  // 0
      "\x00\x02"
      "b\x00\x0d\x00\x12"s          // 6
      "\x02\x00\x50\x00\x00"s       // 13
      "\x02\x00\x40\x01\x00\x06"s;  // 18
  const std::string file = builder.build();
  const LibraryFile library = readLibrary(bytesOf(file));
  EXPECT_EQ(exportedAddress(library, "_a"), 0x40U);
  EXPECT_EQ(exportedAddress(library, "_ab"), 0x50U);
  EXPECT_EQ(exportedAddress(library, "_ac"), kNoAddress);
}

}  // namespace
}  // namespace device
