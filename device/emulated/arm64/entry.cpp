// 64-bit ARM, where the phone and Linux agree on all but small arguments and variable ones. The phone's
// compilers extend a small argument, such as a boolean, to 32 bits before the call and rely on it; this
// machine's leave there what was in the register.
#include "device/emulated/entry.h"

#include "device/emulated/code_memory.h"

namespace device {

namespace {

constexpr unsigned kIntegerRegisters = 8;

/// "and w0, w0, 0xff" or its like, of the type's width and sign; 0 for types that fill their register.
std::uint32_t extension(char type) {
  switch (type) {
    case 'B':
    case 'C':
      return 0x53001c00;
    case 'c':
      return 0x13001c00;
    case 'S':
      return 0x53003c00;
    case 's':
      return 0x13003c00;
    default:
      return 0;
  }
}

/// Whether an argument travels in floating-point registers: numbers, and the points, sizes and rectangles
/// made of them. Methods of the phone take no other structs.
bool isFloatingPoint(char type) { return type == 'f' || type == 'd' || type == '{'; }

void extendArguments(const char* encoding, std::vector<std::uint32_t>& code) {
  constexpr std::uint32_t kRubbishInBits32To47 = 0xf2c00000 | 0xbeefU << 5;
  constexpr std::uint32_t kRubbishInBits48To63 = 0xf2e00000 | 0xdeadU << 5;
  unsigned number = 0;
  // The encoding begins with the result.
  for (const char* type = objc_skip_argspec(encoding); *type != '\0' && number < kIntegerRegisters;
       type = objc_skip_argspec(type)) {
    const char kind = *objc_skip_type_qualifiers(type);
    if (isFloatingPoint(kind)) continue;
    if (const std::uint32_t extend = extension(kind); extend != 0) {
      code.push_back(extend | number << 5 | number);
      code.push_back(kRubbishInBits32To47 | number);
      code.push_back(kRubbishInBits48To63 | number);
    }
    ++number;
  }
}

}  // namespace

IMP enteredAsOnPhones(IMP implementation, const char* encoding) {
  std::vector<std::uint32_t> code;
  extendArguments(encoding, code);
  if (code.empty()) return implementation;
  // The jump finds its aim behind it, on a whole multiple of eight bytes.
  if (code.size() % 2 != 0) code.push_back(0xd503201f);
  constexpr std::uint32_t kLoadAim = 0x58000050;
  constexpr std::uint32_t kJump = 0xd61f0200;
  code.push_back(kLoadAim);
  code.push_back(kJump);
  const auto aim = reinterpret_cast<std::uintptr_t>(implementation);
  code.push_back(static_cast<std::uint32_t>(aim));
  code.push_back(static_cast<std::uint32_t>(aim >> 32));
  return reinterpret_cast<IMP>(placeCode(code));
}

IMP calledAsOnPhones(IMP implementation, const char* /*encoding*/) { return implementation; }

void* nameAsOnPhones(void* address) { return address; }

}  // namespace device
