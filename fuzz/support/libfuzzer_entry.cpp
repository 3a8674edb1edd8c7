// What libFuzzer calls; a program without libFuzzer does not take this file from its library.
#include <cstddef>
#include <cstdint>

#include "fuzz/support/target.h"

namespace {

phone::fuzz::Target& target() {
  // Never destroyed: libFuzzer leaves without unwinding.
  static auto& only = *phone::fuzz::makeTarget().release();
  return only;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int* /*argc*/, char*** /*argv*/) {
  target();
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  phone::fuzz::tryInput(target(), {reinterpret_cast<const char*>(bytes), size});
  return 0;
}
