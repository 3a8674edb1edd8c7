#include "device/emulated/arm32/crossing.h"

#include <stdexcept>

#include "device/emulated/code_memory.h"
#include "device/emulated/crash_report.h"

// In crossing.S.
extern "C" void bridged_crossing();

namespace device {

namespace {

std::vector<Word> returns;

}  // namespace

extern "C" {

void* bridged_depart(const Crossing& crossing, const Word* given, Word* taken, Word returnAddress) {
  returns.push_back(returnAddress);
  return crossing.layOut(crossing, given, taken);
}

void bridged_arrive() { returns.pop_back(); }

}  // extern "C"

ArgumentPlaces callPlaces(const char* encoding) {
  try {
    ArgumentPlaces places = argumentPlaces(encoding);
    if (!places.here.empty() && places.here.back() >= kMaxWords)
      reportAndEnd("a method takes too many arguments");
    return places;
  } catch (const std::runtime_error& reason) {
    reportAndEnd(reason.what());
  }
}

void* functionFor(const Crossing& crossing) {
  // r12 and the jump's aim are loaded from behind the two instructions.
  constexpr std::uint32_t kLoadCrossing = 0xe59fc000;
  constexpr std::uint32_t kJump = 0xe59ff000;
  const auto word = [](const void* address) {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(address));
  };
  return placeCode({kLoadCrossing, kJump, word(&crossing), word(reinterpret_cast<void*>(bridged_crossing))});
}

const std::vector<Word>& returnsOfCrossings() { return returns; }

}  // namespace device
