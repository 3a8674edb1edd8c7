#include "tests/device/library_builder.h"

namespace device {

namespace {

/// A text to which numbers are appended as they lie in memory.
class Writer {
 public:
  template <typename... Numbers>
  void words(Numbers... numbers) {
    (append(static_cast<std::uint32_t>(numbers)), ...);
  }
  /// Numbers as wide as the library's addresses.
  template <typename... Numbers>
  void addresses(bool are32Bit, Numbers... numbers) {
    if (are32Bit) {
      words(numbers...);
    } else {
      (append(static_cast<std::uint64_t>(numbers)), ...);
    }
  }
  void name(std::string text) {
    text.resize(16);
    bytes += text;
  }

  std::string bytes;

 private:
  template <typename Number>
  void append(Number number) {
    bytes.append(reinterpret_cast<const char*>(&number), sizeof(number));
  }
};

std::string segmentCommand(const BuiltSegment& segment, const LibraryBuilder& library) {
  const bool hasInitializers = segment.name == "__DATA" && library.initializersSize > 0;
  const bool is32Bit = library.is32Bit;
  const std::size_t size = is32Bit ? 56 : 72;
  const std::size_t sectionSize = is32Bit ? 68 : 80;
  Writer writer;
  writer.words(is32Bit ? 0x1 : 0x19, size + (hasInitializers ? sectionSize : 0));
  writer.name(segment.name);
  writer.addresses(is32Bit, segment.address, segment.size, segment.offset, segment.fileSize);
  writer.words(7, segment.protection, hasInitializers ? 1 : 0, 0);
  if (hasInitializers) {
    writer.name("__mod_init_func");
    writer.name("__DATA");
    writer.addresses(is32Bit, library.initializers, library.initializersSize);
    writer.words(0, 3, 0, 0, 9, 0, 0);
    if (!is32Bit) writer.words(0);
  }
  return writer.bytes;
}

std::string libraryCommand(std::string name) {
  name.resize((name.size() / 8 + 1) * 8);
  Writer writer;
  writer.words(0xc, 24 + name.size(), 24, 0, 0, 0);
  return writer.bytes + name;
}

}  // namespace

std::string LibraryBuilder::build() const {
  std::vector<std::string> commands;
  for (const BuiltSegment& segment : segments) commands.push_back(segmentCommand(segment, *this));
  for (const std::string& library : libraries) commands.push_back(libraryCommand(library));
  Writer others;
  others.words(0x25, 16, minimumRelease, 0);
  commands.push_back(others.bytes);
  others.bytes.clear();
  others.words(is32Bit ? 0x21 : 0x2c, 24, 0, 0, encryption, 0);
  commands.push_back(others.bytes);
  if (furtherCommand != 0) {
    others.bytes.clear();
    others.words(furtherCommand, 8);
    commands.push_back(others.bytes);
  }

  constexpr std::size_t kInstructionsSize = 48;
  std::size_t size = kInstructionsSize;
  for (const std::string& command : commands) size += command.size();
  std::size_t offset = (is32Bit ? 28 : 32) + size;
  Writer instructions;
  instructions.words(0x80000022, kInstructionsSize);
  std::string content;
  for (const std::string& part : {rebases, binds, std::string(), lazyBinds, exports}) {
    instructions.words(offset, part.size());
    offset += part.size();
    content += part;
  }

  Writer file;
  file.words(magic, processor, 0, kind, commands.size() + 1, size, 0);
  if (!is32Bit) file.words(0);
  for (const std::string& command : commands) file.bytes += command;
  return file.bytes + instructions.bytes + content;
}

}  // namespace device
