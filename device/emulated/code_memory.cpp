#include "device/emulated/code_memory.h"

#include <cstring>
#include <sys/mman.h>

#include "device/emulated/crash_report.h"

namespace device {

namespace {

constexpr std::size_t kSize = std::size_t{64} * 1024;

void* reserve() {
  void* const memory = mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
  if (memory == MAP_FAILED) reportAndEnd("there is no memory for the ways into the plug-in");
  return memory;
}

}  // namespace

void* placeCode(const std::vector<std::uint32_t>& code) {
  static void* const start = reserve();
  static std::size_t used = 0;
  const std::size_t length = code.size() * sizeof(code[0]);
  if (length > kSize - used) reportAndEnd("the plug-in has more methods than any plug-in needs");
  auto* const place = static_cast<char*>(start) + used;
  // Never writable and executable at once.
  mprotect(start, kSize, PROT_READ | PROT_WRITE);
  std::memcpy(place, code.data(), length);
  mprotect(start, kSize, PROT_READ | PROT_EXEC);
  __builtin___clear_cache(place, place + length);
  used += length;
  return place;
}

}  // namespace device
