#include "phone/objc/plugin_file.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <elf.h>
#include <fstream>
#include <link.h>
#include <stdexcept>
#include <string>

namespace phone {

namespace {

namespace fs = std::filesystem;

#if defined(__x86_64__)
constexpr int kThisProcessor = EM_X86_64;
#elif defined(__aarch64__)
constexpr int kThisProcessor = EM_AARCH64;
#elif defined(__arm__)
constexpr int kThisProcessor = EM_ARM;
#else
#error "say which processor's libraries can be loaded here"
#endif
constexpr int kThisWidth = sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32;

std::string processorName(int processor) {
  switch (processor) {
    case EM_X86_64:
      return "x86-64";
    case EM_AARCH64:
      return "64-bit ARM";
    case EM_386:
      return "x86";
    case EM_ARM:
      return "32-bit ARM";
    default:
      return "processor " + std::to_string(processor);
  }
}

[[noreturn]] void refuse(const std::string& what) {
  throw std::runtime_error("it is " + what + "; wanted is a Linux library for " +
                           processorName(kThisProcessor) + ", such as libtavimo.so");
}

template <typename Type>
bool read(std::ifstream& stream, std::uint64_t offset, Type& value) {
  stream.clear();
  stream.seekg(static_cast<std::streamoff>(offset));
  return static_cast<bool>(stream.read(reinterpret_cast<char*>(&value), sizeof(value)));
}

bool isForPhones(const std::array<unsigned char, 4>& start) {
  constexpr std::array<std::array<unsigned char, 4>, 3> kMagics{
      {{0xcf, 0xfa, 0xed, 0xfe}, {0xce, 0xfa, 0xed, 0xfe}, {0xca, 0xfe, 0xba, 0xbe}}};
  return std::find(kMagics.begin(), kMagics.end(), start) != kMagics.end();
}

/// The system's loader maps what the program headers say, whether the file reaches that far or not. The
/// section headers, which it needs for nothing, come last in a file.
bool isCutOff(std::ifstream& stream, const ElfW(Ehdr) & header, std::uint64_t size) {
  if (header.e_shoff > size || std::uint64_t{header.e_shnum} * header.e_shentsize > size - header.e_shoff)
    return true;
  for (unsigned i = 0; i < header.e_phnum; ++i) {
    ElfW(Phdr) part{};
    if (!read(stream, header.e_phoff + std::uint64_t{i} * sizeof(part), part)) return true;
    if (part.p_type == PT_LOAD && (part.p_offset > size || part.p_filesz > size - part.p_offset)) return true;
  }
  return false;
}

}  // namespace

void requireReadableFile(const fs::path& path) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (!fs::exists(status)) throw std::runtime_error("there is no such file");
  if (fs::is_directory(status)) refuse("a folder");
  if (!fs::is_regular_file(status)) refuse("no plain file");
  if (!std::ifstream(path, std::ios::binary)) throw std::runtime_error("it cannot be opened for reading");
}

void requireSharedObject(const fs::path& path) {
  std::ifstream stream(path, std::ios::binary);
  std::array<unsigned char, 4> start{};
  if (!read(stream, 0, start) || std::memcmp(start.data(), ELFMAG, SELFMAG) != 0) {
    refuse(isForPhones(start) ? "a library for phones, which \"scripts/emulate\" can run" : "no library");
  }
  ElfW(Ehdr) header{};
  if (!read(stream, 0, header)) refuse("a library that is cut off");
  if (header.e_ident[EI_CLASS] != kThisWidth || header.e_machine != kThisProcessor) {
    refuse("a file for " + processorName(header.e_machine));
  }
  if (header.e_type != ET_DYN) refuse("no shared library but another kind of compiled file");
  if (isCutOff(stream, header, fs::file_size(path))) refuse("a library that is cut off");
}

}  // namespace phone
