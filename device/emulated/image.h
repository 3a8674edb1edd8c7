// A library for phones in this process's memory: mapped, adjusted, joined to the host's names, and started.
#pragma once

#include "device/emulated/fixups.h"
#include "device/emulated/symbol_table.h"

namespace device {

/// Where the names that a library asks for come from. Gives nil for a name that nobody offers.
using NameLookup = void* (*)(const std::string& name);

class Image {
 public:
  /// Maps the library, joins it to the names that it asks for, and gives its segments their own rights.
  /// Throws BadLibrary.
  Image(Bytes file, NameLookup lookUp, Processor processor = kLoadedProcessor);
  ~Image();
  Image(const Image&) = delete;
  Image& operator=(const Image&) = delete;

  /// The library's functions that want to be called before any other, in this order. Throws BadLibrary.
  std::vector<void*> initializers() const;

  /// Address of an offered name, or nil.
  void* address(const std::string& name) const;
  /// Whether the address lies in the library's memory.
  bool holds(std::uintptr_t address) const;
  /// The nearest symbol at or before the address, and the distance to it: "drawColoredDot + 36". The address
  /// must lie in the library.
  std::string describe(std::uintptr_t address) const;
  /// Takes symbols from another copy of the same library, from which they were not stripped. Throws
  /// BadLibrary.
  void takeSymbols(Bytes file);

 private:
  void reserve();
  void fill();
  void adjust();
  void bind(NameLookup lookUp);
  void protect();
  std::uint64_t addressAt(std::uint64_t place) const;
  void setAddressAt(std::uint64_t place, std::uint64_t address);
  std::byte* at(std::uint64_t address) const { return memory_ + address; }

  LibraryFile library_;
  SymbolTable symbols_;
  std::byte* memory_ = nullptr;
  std::size_t size_ = 0;
};

}  // namespace device
