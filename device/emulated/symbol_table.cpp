#include "device/emulated/symbol_table.h"

#include <cxxabi.h>
#include <memory>

#include "device/emulated/byte_reader.h"

namespace device {

namespace {

struct Entry {
  std::uint32_t name;
  std::uint8_t kind;
  std::uint8_t section;
  std::uint16_t description;
};

constexpr std::uint8_t kDebuggerMask = 0xe0;
constexpr std::uint8_t kKindMask = 0x0e;
constexpr std::uint8_t kDefined = 0x0e;

/// "__ZN6tavimo5countE..." as it stands in the source, without its arguments.
std::string readable(std::string_view symbol) {
  const std::string name(symbol.substr(symbol.starts_with('_') ? 1 : 0));
  int status = 0;
  const std::unique_ptr<char, void (*)(void*)> demangled(
      abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status), std::free);
  return status == 0 ? demangled.get() : printable(name);
}

}  // namespace

SymbolTable::SymbolTable(const LibraryFile& library) {
  ByteReader entries(library.symbols, "the table of symbols");
  while (!entries.atEnd()) {
    const auto entry = entries.read<Entry>();
    const std::uint64_t address = entries.address(library.pointerSize());
    if ((entry.kind & kDebuggerMask) != 0 || (entry.kind & kKindMask) != kDefined) continue;
    ByteReader names(library.symbolNames, "the table of symbols' names");
    names.moveTo(entry.name);
    byAddress_.push_back({address, names.text()});
  }
  std::sort(byAddress_.begin(), byAddress_.end(),
            [](const Symbol& left, const Symbol& right) { return left.address < right.address; });
}

std::string SymbolTable::nearest(std::uint64_t address) const {
  const auto after =
      std::upper_bound(byAddress_.begin(), byAddress_.end(), address,
                       [](std::uint64_t place, const Symbol& symbol) { return place < symbol.address; });
  if (after == byAddress_.begin()) return "its start + " + std::to_string(address);
  const Symbol& symbol = *(after - 1);
  return readable(symbol.name) + " + " + std::to_string(address - symbol.address);
}

}  // namespace device
