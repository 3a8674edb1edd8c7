// Names for addresses, for reports of what went wrong.
#pragma once

#include <string_view>

#include "device/emulated/library_file.h"

namespace device {

class SymbolTable {
 public:
  /// The functions and data that the library defines; the file must live as long as the table. Throws
  /// BadLibrary.
  explicit SymbolTable(const LibraryFile& library);

  /// The nearest symbol at or before an address that counts from the library's start, and the distance to it:
  /// "drawColoredDot + 36".
  std::string nearest(std::uint64_t address) const;

 private:
  struct Symbol {
    std::uint64_t address;
    /// Borrowed from the file.
    std::string_view name;
  };

  std::vector<Symbol> byAddress_;
};

}  // namespace device
