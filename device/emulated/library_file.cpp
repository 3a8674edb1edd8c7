#include "device/emulated/library_file.h"

#include <cstdio>

#include "device/emulated/byte_reader.h"

namespace device {

namespace {

constexpr std::uint32_t kMagic64 = 0xfeedfacf;
constexpr std::uint32_t kMagic32 = 0xfeedface;
constexpr std::uint32_t kFatMagic = 0xbebafeca;  // Big-endian in the file.
constexpr std::uint32_t kDynamicLibrary = 6;
constexpr std::uint32_t kMaxFatSlices = 32;

constexpr std::uint64_t kPage = 4096;
/// Far more than any plug-in has; more would only be a way to use memory and time up.
constexpr std::uint64_t kMaxMemory = 256 << 20;
constexpr std::size_t kMaxSegments = 16;
constexpr std::size_t kMaxInitializers = 10'000;
constexpr std::uint32_t kMaxSymbols = 1'000'000;
constexpr int kLastMajorRelease = 9;

enum Command : std::uint32_t {
  kSegment32 = 0x1,
  kSegment64 = 0x19,
  kSymbolTable = 0x2,
  kDynamicSymbolTable = 0xb,
  kLoadLibrary = 0xc,
  kLibraryIdentity = 0xd,
  kUuid = 0x1b,
  kCodeSignature = 0x1d,
  kEncryption32 = 0x21,
  kMinimumRelease = 0x25,
  kFunctionStarts = 0x26,
  kDataInCode = 0x29,
  kSourceVersion = 0x2a,
  kEncryption64 = 0x2c,
  kWeakLibrary = 0x80000018,
  kLoaderInstructions = 0x80000022,
};

/// A command of this bit must be understood by whoever loads the library.
constexpr std::uint32_t kMustBeUnderstood = 0x80000000;

// `Word` is a number as wide as the library's addresses.
template <typename Word>
struct SegmentCommand {
  std::array<char, 16> name;
  Word address, size, offset, fileSize;
  std::uint32_t maximalProtection, protection, sectionCount, flags;
};

template <typename Word>
struct SectionHeader {
  std::array<char, 16> name, segmentName;
  Word address, size;
  std::uint32_t offset, alignment, relocations, relocationCount, flags;
  std::array<std::uint32_t, sizeof(Word) / 4 + 1> reserved;
};

struct FatSlice {
  std::uint32_t processor, subtype, offset, size, alignment;
};

constexpr std::uint32_t kSectionTypeMask = 0xff;
constexpr std::uint32_t kInitializerPointers = 0x9;

std::string textOf(const std::array<char, 16>& name) {
  return printable({name.begin(), std::find(name.begin(), name.end(), '\0')});
}

std::string processorName(std::uint32_t processor) {
  switch (processor) {
    case static_cast<std::uint32_t>(Processor::kArm64):
      return "64-bit ARM";
    case static_cast<std::uint32_t>(Processor::kArm32):
      return "32-bit ARM";
    case 0x01000007:
      return "x86-64";
    case 7:
      return "x86";
    default: {
      std::array<char, 32> text{};
      std::snprintf(text.data(), text.size(), "processor %#x", processor);
      return text.data();
    }
  }
}

Bytes part(Bytes file, std::uint64_t offset, std::uint64_t size, const std::string& what) {
  if (offset > file.size() || size > file.size() - offset) {
    throw BadLibrary(what + " lies beyond the end of the file: the file is cut off or damaged");
  }
  return file.subspan(offset, size);
}

/// Of a file for several processors, the library for one.
Bytes sliceOf(Bytes file, std::uint32_t wanted) {
  ByteReader reader(file, "the list of processors");
  if (reader.read<std::uint32_t>() != kFatMagic) return file;
  const std::uint32_t count = __builtin_bswap32(reader.read<std::uint32_t>());
  if (count > kMaxFatSlices)
    throw BadLibrary("it claims to hold libraries for " + std::to_string(count) + " processors");
  std::string others;
  for (std::uint32_t i = 0; i < count; ++i) {
    const auto slice = reader.read<FatSlice>();
    const std::uint32_t processor = __builtin_bswap32(slice.processor);
    if (processor == wanted) {
      return part(file, __builtin_bswap32(slice.offset), __builtin_bswap32(slice.size),
                  "the library for " + processorName(wanted));
    }
    others += (others.empty() ? "" : ", ") + processorName(processor);
  }
  throw BadLibrary("it holds libraries for " + (others.empty() ? "no processor" : others) + "; one for " +
                   processorName(wanted) + " is wanted");
}

class LibraryReader {
 public:
  LibraryReader(Bytes bytes, Processor wanted) : bytes_(bytes) { library_.processor = wanted; }

  LibraryFile read() {
    ByteReader header(bytes_, "the header");
    const auto magic = header.read<std::uint32_t>();
    if (magic != kMagic64 && magic != kMagic32) throw BadLibrary("it is no library for phones");
    const auto processor = header.read<std::uint32_t>();
    if (const auto wanted = static_cast<std::uint32_t>(library_.processor); processor != wanted) {
      throw BadLibrary("it is for " + processorName(processor) + "; one for " + processorName(wanted) +
                       " is wanted");
    }
    const bool is64Bit = library_.pointerSize() == sizeof(std::uint64_t);
    if (is64Bit != (magic == kMagic64)) {
      throw BadLibrary("its addresses are not as wide as those of " + processorName(processor));
    }
    header.skip(4);
    const auto kind = header.read<std::uint32_t>();
    if (kind != kDynamicLibrary) {
      throw BadLibrary("it is a file of kind " + std::to_string(kind) + "; a dynamic library (6) is wanted");
    }
    const auto count = header.read<std::uint32_t>();
    const auto size = header.read<std::uint32_t>();
    header.skip(is64Bit ? 8 : 4);
    ByteReader commands(part(bytes_, header.position(), size, "the list of load commands"),
                        "the list of load commands");
    for (std::uint32_t i = 0; i < count; ++i) readCommand(commands);
    checkSegments();
    for (const auto& [address, length] : initializerSections_) addInitializers(address, length);
    return std::move(library_);
  }

 private:
  void readCommand(ByteReader& commands) {
    const std::size_t start = commands.position();
    const auto command = commands.read<std::uint32_t>();
    const auto size = commands.read<std::uint32_t>();
    if (size < 8) throw BadLibrary("a load command claims to be " + std::to_string(size) + " bytes long");
    switch (command) {
      case kSegment64:
        readSegment<std::uint64_t>(commands);
        break;
      case kSegment32:
        readSegment<std::uint32_t>(commands);
        break;
      case kLoadLibrary:
      case kWeakLibrary:
        readLibraryName(commands, start);
        break;
      case kLoaderInstructions:
        readInstructions(commands);
        break;
      case kMinimumRelease:
        checkRelease(commands.read<std::uint32_t>());
        break;
      case kEncryption32:
      case kEncryption64:
        commands.skip(8);
        if (commands.read<std::uint32_t>() != 0) throw BadLibrary("it is encrypted");
        break;
      case kSymbolTable:
        readSymbolTable(commands);
        break;
      case kUuid:
        library_.identity = commands.read<std::array<std::byte, 16>>();
        break;
      case kDynamicSymbolTable:
      case kLibraryIdentity:
      case kCodeSignature:
      case kFunctionStarts:
      case kDataInCode:
      case kSourceVersion:
        break;
      default:
        refuseUnknown(command);
    }
    commands.moveTo(start + size);
  }

  static void refuseUnknown(std::uint32_t command) {
    if ((command & kMustBeUnderstood) == 0) return;
    std::array<char, 96> text{};
    std::snprintf(text.data(), text.size(),
                  "it has a load command %#x, which iOS 7 to 9 do not know or no plug-in needs", command);
    throw BadLibrary(text.data());
  }

  static void checkRelease(std::uint32_t version) {
    const unsigned major = version >> 16;
    if (major > kLastMajorRelease) {
      throw BadLibrary("it is for iOS " + std::to_string(major) +
                       " and later; one for iOS 9 or earlier is wanted");
    }
  }

  template <typename Word>
  void readSegment(ByteReader& commands) {
    if (sizeof(Word) != library_.pointerSize())
      throw BadLibrary("it describes a segment in the form of a processor that it is not for");
    const auto command = commands.read<SegmentCommand<Word>>();
    const std::string name = textOf(command.name);
    const Bytes content = part(bytes_, command.offset, command.fileSize, "the segment " + name);
    if (command.address % kPage != 0 || command.size > kMaxMemory || command.address > kMaxMemory ||
        content.size() > command.size) {
      throw BadLibrary("the segment " + name + " has an impossible place or size");
    }
    constexpr std::uint32_t kRead = 1;
    constexpr std::uint32_t kWrite = 2;
    constexpr std::uint32_t kExecute = 4;
    library_.segments.push_back({.name = name,
                                 .address = command.address,
                                 .size = command.size,
                                 .content = content,
                                 .isReadable = (command.protection & kRead) != 0,
                                 .isWritable = (command.protection & kWrite) != 0,
                                 .isExecutable = (command.protection & kExecute) != 0});
    if (library_.segments.size() > kMaxSegments) throw BadLibrary("it has more segments than any plug-in");
    if (library_.segments.back().isWritable && library_.segments.back().isExecutable) {
      throw BadLibrary("the segment " + name + " can be written and executed, which a phone forbids");
    }
    for (std::uint32_t i = 0; i < command.sectionCount; ++i) {
      const auto section = commands.read<SectionHeader<Word>>();
      if ((section.flags & kSectionTypeMask) == kInitializerPointers) {
        initializerSections_.emplace_back(section.address, section.size);
      }
    }
  }

  void readLibraryName(ByteReader& commands, std::size_t start) {
    const auto offset = commands.read<std::uint32_t>();
    commands.moveTo(start + offset);
    library_.libraries.push_back(printable(commands.text()));
  }

  void readInstructions(ByteReader& commands) {
    const auto next = [&](const char* what) {
      const auto offset = commands.read<std::uint32_t>();
      const auto size = commands.read<std::uint32_t>();
      return part(bytes_, offset, size, what);
    };
    library_.rebases = next("the list of addresses to adjust");
    library_.binds = next("the list of names to look up");
    library_.weakBinds = next("the list of shared names");
    library_.lazyBinds = next("the list of names to look up later");
    library_.exports = next("the list of names on offer");
  }

  void readSymbolTable(ByteReader& commands) {
    const auto place = commands.read<std::array<std::uint32_t, 4>>();
    if (place[1] > kMaxSymbols) throw BadLibrary("it has more symbols than any plug-in");
    // Two words of four bytes and an address.
    const std::uint64_t size = place[1] * (8 + library_.pointerSize());
    library_.symbols = part(bytes_, place[0], size, "the table of symbols");
    library_.symbolNames = part(bytes_, place[2], place[3], "the table of symbols' names");
  }

  void checkSegments() const {
    if (library_.segments.empty()) throw BadLibrary("it has no segments");
    for (const Segment& segment : library_.segments) {
      for (const Segment& other : library_.segments) {
        const bool apart = &segment == &other || segment.address + segment.size <= other.address ||
                           other.address + other.size <= segment.address;
        if (!apart) throw BadLibrary("the segments " + segment.name + " and " + other.name + " overlap");
      }
    }
  }

  void addInitializers(std::uint64_t address, std::uint64_t length) {
    const Segment* const segment = library_.segmentAt(address, length);
    const std::size_t pointer = library_.pointerSize();
    if (segment == nullptr || length % pointer != 0 || address % pointer != 0) {
      throw BadLibrary("its list of initialisers lies outside its memory");
    }
    if (length / pointer > kMaxInitializers - library_.initializers.size()) {
      throw BadLibrary("it has more initialisers than any plug-in");
    }
    for (std::uint64_t at = 0; at < length; at += pointer) library_.initializers.push_back(address + at);
  }

  Bytes bytes_;
  LibraryFile library_;
  std::vector<std::pair<std::uint64_t, std::uint64_t>> initializerSections_;
};

}  // namespace

const Segment* LibraryFile::segmentAt(std::uint64_t address, std::uint64_t length) const {
  for (const Segment& segment : segments) {
    if (segment.holds(address, length)) return &segment;
  }
  return nullptr;
}

bool isPhoneLibrary(Bytes file) {
  if (file.size() < sizeof(std::uint32_t)) return false;
  const auto magic = ByteReader(file, "the header").read<std::uint32_t>();
  return magic == kMagic64 || magic == kMagic32 || magic == kFatMagic;
}

LibraryFile readLibrary(Bytes file, Processor wanted) {
  return LibraryReader(sliceOf(file, static_cast<std::uint32_t>(wanted)), wanted).read();
}

}  // namespace device
