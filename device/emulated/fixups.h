// What a loader has to write into a library's memory before its code can run: adjusted addresses, and the
// addresses of names that others offer. The file keeps them as instructions of a small machine.
#pragma once

#include <string_view>

#include "device/emulated/library_file.h"

namespace device {

/// A place to be filled with a name's address.
struct Binding {
  std::uint64_t place;
  /// Borrowed from the file.
  std::string_view name;
  /// The number of the library that has the name, from 1; others stand for no library in particular.
  std::int64_t library;
  std::int64_t addend;
  /// Filled with zero when nobody offers the name.
  bool isWeak;
};

/// The places whose content is an address that counts from the library's start. Throws BadLibrary.
std::vector<std::uint64_t> rebasePlaces(const LibraryFile& library);

/// All names that are looked up, at load or later. Throws BadLibrary.
std::vector<Binding> bindings(const LibraryFile& library);

/// The address of an offered name, counted from the library's start; none when it is not offered. Throws
/// BadLibrary.
std::uint64_t exportedAddress(const LibraryFile& library, const std::string& name);

/// What exportedAddress() gives for a name that is not there.
inline constexpr std::uint64_t kNoAddress = ~std::uint64_t{0};

}  // namespace device
