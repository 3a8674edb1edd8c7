#include "device/emulated/image.h"

#include <cstring>
#include <sys/mman.h>

#include "device/emulated/byte_reader.h"

namespace device {

namespace {

constexpr std::size_t kPage = 4096;

std::size_t wholePages(std::size_t size) { return (size + kPage - 1) / kPage * kPage; }

/// Names in the file have an underscore in front, which names in the source have not.
std::string sourceName(std::string_view name) {
  return std::string(name.substr(name.starts_with('_') ? 1 : 0));
}

}  // namespace

Image::Image(Bytes file, NameLookup lookUp, Processor processor)
    : library_(readLibrary(file, processor)), symbols_(library_) {
  reserve();
  try {
    fill();
    adjust();
    bind(lookUp);
    protect();
  } catch (...) {
    munmap(memory_, size_);
    throw;
  }
}

Image::~Image() { munmap(memory_, size_); }

void Image::reserve() {
  std::uint64_t end = 0;
  for (const Segment& segment : library_.segments) end = std::max(end, segment.address + segment.size);
  size_ = wholePages(end);
  // The same place in every run where that is free, for instruction_count.c and for reports that can be
  // compared.
  constexpr std::uint64_t kPlace = 0x1000000000;
  constexpr std::uint64_t kPlaceOf32Bits = 0x10000000;
  auto* const wanted = reinterpret_cast<void*>(
      static_cast<std::uintptr_t>(library_.processor == Processor::kArm64 ? kPlace : kPlaceOf32Bits));
  void* const memory = mmap(wanted, size_, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) throw BadLibrary("there is not enough memory for it");
  memory_ = static_cast<std::byte*>(memory);
}

void Image::fill() {
  for (const Segment& segment : library_.segments) {
    std::copy(segment.content.begin(), segment.content.end(), at(segment.address));
  }
}

void Image::adjust() {
  for (const std::uint64_t place : rebasePlaces(library_)) {
    setAddressAt(place, addressAt(place) + reinterpret_cast<std::uintptr_t>(memory_));
  }
}

void Image::bind(NameLookup lookUp) {
  for (const Binding& binding : bindings(library_)) {
    void* const offered = lookUp(sourceName(binding.name));
    if (offered == nullptr && !binding.isWeak) {
      const auto number = static_cast<std::size_t>(binding.library - 1);
      const std::string from =
          number < library_.libraries.size() ? library_.libraries[number] : "some library";
      throw BadLibrary("it asks for " + printable(sourceName(binding.name)) + " of " + from +
                       ", and nobody here offers that");
    }
    setAddressAt(binding.place, offered == nullptr ? 0
                                                   : reinterpret_cast<std::uintptr_t>(offered) +
                                                         static_cast<std::uint64_t>(binding.addend));
  }
}

std::uint64_t Image::addressAt(std::uint64_t place) const {
  return ByteReader({at(place), library_.pointerSize()}, "an address").address(library_.pointerSize());
}

/// Of an address that is wider than the library's, as only this machine's own can be, the lower half is left.
void Image::setAddressAt(std::uint64_t place, std::uint64_t address) {
  std::memcpy(at(place), &address, library_.pointerSize());
}

void Image::protect() {
  for (const Segment& segment : library_.segments) {
    const int rights = (segment.isReadable ? PROT_READ : 0) | (segment.isWritable ? PROT_WRITE : 0) |
                       (segment.isExecutable ? PROT_EXEC : 0);
    std::byte* const start = at(segment.address);
    if (mprotect(start, wholePages(segment.size), rights) != 0) {
      throw BadLibrary("the rights of its segment " + segment.name + " cannot be given");
    }
    // The processor may have fetched what was here before.
    if (segment.isExecutable)
      __builtin___clear_cache(reinterpret_cast<char*>(start), reinterpret_cast<char*>(start + segment.size));
  }
}

std::vector<void*> Image::initializers() const {
  std::vector<void*> functions;
  for (const std::uint64_t place : library_.initializers) {
    const auto function = static_cast<std::uintptr_t>(addressAt(place));
    const Segment* const segment =
        holds(function) ? library_.segmentAt(function - reinterpret_cast<std::uintptr_t>(memory_), 4)
                        : nullptr;
    if (segment == nullptr || !segment->isExecutable)
      throw BadLibrary("an initialiser lies outside its code");
    functions.push_back(reinterpret_cast<void*>(function));
  }
  return functions;
}

void* Image::address(const std::string& name) const {
  const std::uint64_t place = exportedAddress(library_, "_" + name);
  return place == kNoAddress || place >= size_ ? nullptr : at(place);
}

bool Image::holds(std::uintptr_t address) const {
  const auto start = reinterpret_cast<std::uintptr_t>(memory_);
  return address >= start && address < start + size_;
}

std::string Image::describe(std::uintptr_t address) const {
  return symbols_.nearest(address - reinterpret_cast<std::uintptr_t>(memory_));
}

void Image::takeSymbols(Bytes file) {
  const LibraryFile whole = readLibrary(file, library_.processor);
  if (whole.identity == library_.identity) symbols_ = SymbolTable(whole);
}

}  // namespace device
