// A library for the phone, as its file describes it: one that the plug-in's package holds, or one that claims
// to be. Nothing is believed: whatever is read lies inside the file, or the library is refused.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

namespace device {

/// Why a library cannot be loaded, for people.
class BadLibrary : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

using Bytes = std::span<const std::byte>;

/// A stretch of the library's memory. Addresses count from the library's own start.
struct Segment {
  /// For people.
  std::string name;
  std::uint64_t address;
  std::uint64_t size;
  /// What the file holds of it; the rest is zero.
  Bytes content;
  bool isReadable;
  bool isWritable;
  bool isExecutable;

  bool holds(std::uint64_t place, std::uint64_t length) const {
    return place >= address && length <= size && place - address <= size - length;
  }
};

/// The processors of phones, by the numbers that files have for them.
enum class Processor : std::uint32_t { kArm64 = 0x0100000c, kArm32 = 12 };

/// The one whose libraries this process loads; where it can run neither kind, those for 64 bits are looked
/// at.
#if defined(__arm__)
inline constexpr Processor kLoadedProcessor = Processor::kArm32;
#else
inline constexpr Processor kLoadedProcessor = Processor::kArm64;
#endif

/// The library for one processor in a file; all of its parts point into the file's bytes.
struct LibraryFile {
  Processor processor = kLoadedProcessor;
  std::vector<Segment> segments;
  /// The names of the libraries that it is linked to, for people; the first has number 1.
  std::vector<std::string> libraries;
  /// Instructions for the loader: which addresses to adjust, which names to look up.
  Bytes rebases;
  Bytes binds;
  Bytes weakBinds;
  Bytes lazyBinds;
  /// The names that it offers.
  Bytes exports;
  /// What functions and data are called, as far as the linker left it in; for reports.
  Bytes symbols;
  Bytes symbolNames;
  /// The linker's mark, the same in a copy without symbols.
  std::array<std::byte, 16> identity{};
  /// Places in memory that hold the addresses of functions to call once the library is loaded.
  std::vector<std::uint64_t> initializers;

  /// How many bytes an address takes in its memory.
  std::size_t pointerSize() const { return processor == Processor::kArm64 ? 8 : 4; }
  /// The segment that holds these bytes of memory, or nil.
  const Segment* segmentAt(std::uint64_t address, std::uint64_t length) const;
};

/// Whether the bytes are those of a library for phones, of one processor or several.
bool isPhoneLibrary(Bytes file);

/// The library for that processor in the file. `file` must outlive it. Throws BadLibrary.
LibraryFile readLibrary(Bytes file, Processor wanted = kLoadedProcessor);

}  // namespace device
