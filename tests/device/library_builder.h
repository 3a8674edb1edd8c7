// Puts a small library for phones together, byte by byte, so that each part of it can be damaged.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "device/emulated/library_file.h"

namespace device {

struct BuiltSegment {
  std::string name;
  std::uint64_t address = 0;
  std::uint64_t size = 0x1000;
  std::uint32_t protection = 1;
  /// Where its content lies in the file, and how long it is.
  std::uint64_t offset = 0;
  std::uint64_t fileSize = 0;
};

/// What goes into the file; as it stands, a library that loads.
struct LibraryBuilder {
  /// In the form for that processor.
  explicit LibraryBuilder(Processor built = Processor::kArm64) : is32Bit(built == Processor::kArm32) {}

  bool is32Bit;
  std::uint32_t magic = is32Bit ? 0xfeedface : 0xfeedfacf;
  std::uint32_t processor = is32Bit ? 12 : 0x0100000c;
  std::uint32_t kind = 6;
  std::vector<BuiltSegment> segments = {{.name = "__TEXT", .protection = 5},
                                        {.name = "__DATA", .address = 0x1000, .protection = 3},
                                        {.name = "__LINKEDIT", .address = 0x2000}};
  std::vector<std::string> libraries = {"/usr/lib/libSystem.B.dylib"};
  std::uint32_t minimumRelease = 0x70000;
  std::uint32_t encryption = 0;
  /// A load command of this number, if it is not 0.
  std::uint32_t furtherCommand = 0;
  std::string rebases;
  std::string binds;
  std::string lazyBinds;
  std::string exports;
  /// The address of the section that lists initialisers, and its length.
  std::uint64_t initializers = 0x1000;
  std::uint64_t initializersSize = 8;

  std::string build() const;
};

}  // namespace device
