#include "device/emulated/fixups.h"

#include "device/emulated/byte_reader.h"

namespace device {

namespace {

constexpr std::uint8_t kOperationMask = 0xf0;
constexpr std::uint8_t kImmediateMask = 0x0f;
/// Far more places than any plug-in fills; instructions can claim any number.
constexpr std::uint64_t kMaxFixups = 100'000;

[[noreturn]] void refuseInstruction(const char* what, std::uint8_t operation) {
  throw BadLibrary(std::string(what) + " has an unknown instruction " + std::to_string(operation >> 4));
}

/// The place that the next write goes to: in some segment, and only in one that may be written.
class Cursor {
 public:
  Cursor(const LibraryFile& library, const char* what) : library_(library), what_(what) {}

  void moveTo(std::size_t segment, std::uint64_t offset) {
    if (segment >= library_.segments.size()) {
      throw BadLibrary(std::string(what_) + " names a segment " + std::to_string(segment) +
                       ", and there is none");
    }
    segment_ = &library_.segments[segment];
    offset_ = wrapped(offset);
  }

  void add(std::uint64_t distance) { offset_ = wrapped(offset_ + distance); }
  void addPointers(std::uint64_t count) { add(count * library_.pointerSize()); }

  /// The place, after which the cursor stands behind it.
  std::uint64_t next() {
    if (++count_ > kMaxFixups)
      throw BadLibrary(std::string(what_) + " fills more places than any plug-in has");
    if (segment_ == nullptr || !segment_->isWritable || offset_ > segment_->size ||
        segment_->size - offset_ < library_.pointerSize()) {
      throw BadLibrary(std::string(what_) + " writes outside the library's data");
    }
    const std::uint64_t place = segment_->address + offset_;
    offset_ += library_.pointerSize();
    return place;
  }

 private:
  /// Steps back are written as steps forward past the end of the addresses.
  std::uint64_t wrapped(std::uint64_t offset) const {
    return library_.pointerSize() == sizeof(std::uint64_t) ? offset : static_cast<std::uint32_t>(offset);
  }

  const LibraryFile& library_;
  const char* what_;
  const Segment* segment_ = nullptr;
  std::uint64_t offset_ = 0;
  std::uint64_t count_ = 0;
};

enum RebaseOperation : std::uint8_t {
  kRebaseDone = 0x00,
  kRebaseSetType = 0x10,
  kRebaseSetPlace = 0x20,
  kRebaseAdd = 0x30,
  kRebaseAddPointers = 0x40,
  kRebaseTimes = 0x50,
  kRebaseManyTimes = 0x60,
  kRebaseOnceAndAdd = 0x70,
  kRebaseTimesSkipping = 0x80,
};

enum BindOperation : std::uint8_t {
  kBindDone = 0x00,
  kBindSetLibrary = 0x10,
  kBindSetLargeLibrary = 0x20,
  kBindSetSpecialLibrary = 0x30,
  kBindSetName = 0x40,
  kBindSetType = 0x50,
  kBindSetAddend = 0x60,
  kBindSetPlace = 0x70,
  kBindAdd = 0x80,
  kBindOnce = 0x90,
  kBindOnceAndAdd = 0xa0,
  kBindOnceAndAddPointers = 0xb0,
  kBindTimesSkipping = 0xc0,
};

constexpr std::uint8_t kWeakImport = 0x1;

/// `afterEach` says what kBindDone means: in the list of names that are looked up later, it ends one entry
/// only.
void readBindings(const LibraryFile& library, Bytes instructions, const char* what, bool afterEach,
                  std::vector<Binding>& found) {
  ByteReader reader(instructions, what);
  Cursor cursor(library, what);
  Binding binding{};
  const auto bind = [&] {
    binding.place = cursor.next();
    found.push_back(binding);
  };
  while (!reader.atEnd()) {
    const std::uint8_t instruction = reader.byte();
    const std::uint8_t immediate = instruction & kImmediateMask;
    switch (instruction & kOperationMask) {
      case kBindDone:
        if (!afterEach) return;
        break;
      case kBindSetLibrary:
        binding.library = immediate;
        break;
      case kBindSetLargeLibrary:
        binding.library = static_cast<std::int64_t>(reader.uleb());
        break;
      case kBindSetSpecialLibrary:
        binding.library = immediate == 0 ? 0 : immediate - 16;
        break;
      case kBindSetName:
        binding.isWeak = (immediate & kWeakImport) != 0;
        binding.name = reader.text();
        break;
      case kBindSetType:
        if (immediate != 1) throw BadLibrary(std::string(what) + " wants something other than addresses");
        break;
      case kBindSetAddend:
        binding.addend = reader.sleb();
        break;
      case kBindSetPlace:
        cursor.moveTo(immediate, reader.uleb());
        break;
      case kBindAdd:
        cursor.add(reader.uleb());
        break;
      case kBindOnce:
        bind();
        break;
      case kBindOnceAndAdd:
        bind();
        cursor.add(reader.uleb());
        break;
      case kBindOnceAndAddPointers:
        bind();
        cursor.addPointers(immediate);
        break;
      case kBindTimesSkipping: {
        const std::uint64_t times = reader.uleb();
        const std::uint64_t distance = reader.uleb();
        for (std::uint64_t i = 0; i < times; ++i) {
          bind();
          cursor.add(distance);
        }
        break;
      }
      default:
        refuseInstruction(what, instruction);
    }
  }
}

}  // namespace

std::vector<std::uint64_t> rebasePlaces(const LibraryFile& library) {
  constexpr const char* kWhat = "the list of addresses to adjust";
  ByteReader reader(library.rebases, kWhat);
  Cursor cursor(library, kWhat);
  std::vector<std::uint64_t> places;
  const auto rebase = [&](std::uint64_t times, std::uint64_t distance) {
    for (std::uint64_t i = 0; i < times; ++i) {
      places.push_back(cursor.next());
      cursor.add(distance);
    }
  };
  while (!reader.atEnd()) {
    const std::uint8_t instruction = reader.byte();
    const std::uint8_t immediate = instruction & kImmediateMask;
    switch (instruction & kOperationMask) {
      case kRebaseDone:
        return places;
      case kRebaseSetType:
        if (immediate != 1) throw BadLibrary(std::string(kWhat) + " holds something other than addresses");
        break;
      case kRebaseSetPlace:
        cursor.moveTo(immediate, reader.uleb());
        break;
      case kRebaseAdd:
        cursor.add(reader.uleb());
        break;
      case kRebaseAddPointers:
        cursor.addPointers(immediate);
        break;
      case kRebaseTimes:
        rebase(immediate, 0);
        break;
      case kRebaseManyTimes:
        rebase(reader.uleb(), 0);
        break;
      case kRebaseOnceAndAdd:
        rebase(1, reader.uleb());
        break;
      case kRebaseTimesSkipping: {
        const std::uint64_t times = reader.uleb();
        rebase(times, reader.uleb());
        break;
      }
      default:
        refuseInstruction(kWhat, instruction);
    }
  }
  return places;
}

std::vector<Binding> bindings(const LibraryFile& library) {
  std::vector<Binding> found;
  readBindings(library, library.binds, "the list of names to look up", false, found);
  readBindings(library, library.weakBinds, "the list of shared names", false, found);
  readBindings(library, library.lazyBinds, "the list of names to look up later", true, found);
  return found;
}

std::uint64_t exportedAddress(const LibraryFile& library, const std::string& name) {
  constexpr const char* kWhat = "the list of names on offer";
  if (library.exports.empty()) return kNoAddress;
  ByteReader reader(library.exports, kWhat);
  std::string_view rest = name;
  bool wasEdgeEmpty = false;
  while (true) {
    const std::uint64_t length = reader.uleb();
    if (rest.empty() && length != 0) {
      if (reader.uleb() != 0) throw BadLibrary(name + " is offered in a way that no plug-in needs");
      return reader.uleb();
    }
    reader.skip(length);
    std::size_t child = 0;
    for (std::uint8_t children = reader.byte(); children > 0; --children) {
      const std::string_view edge = reader.text();
      const std::uint64_t node = reader.uleb();
      // An edge without characters is how some linkers end a name that begins others. As two of them never
      // follow each other, a name gets shorter, and a list that leads back into itself ends as well.
      if (rest.starts_with(edge) && !(edge.empty() && wasEdgeEmpty)) {
        rest.remove_prefix(edge.size());
        wasEdgeEmpty = edge.empty();
        child = node;
        break;
      }
    }
    if (child == 0) return kNoAddress;
    reader.moveTo(child);
  }
}

}  // namespace device
