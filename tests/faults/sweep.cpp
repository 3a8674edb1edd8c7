#include "tests/faults/sweep.h"

#include <algorithm>
#include <cstdlib>
#include <sstream>
#include <string_view>

namespace phone {

bool sweepsAll() {
  const char* const sweep = std::getenv("FAULT_SWEEP");
  return sweep != nullptr && std::string_view(sweep) == "all";
}

std::vector<std::uint32_t> chosenOf(std::uint32_t calls, std::uint32_t few) {
  const std::uint32_t wanted = sweepsAll() ? calls : std::min(calls, few);
  std::vector<std::uint32_t> chosen;
  for (std::uint32_t i = 0; i < wanted; ++i) {
    const std::uint64_t last = wanted == 1 ? 1 : wanted - 1;
    chosen.push_back(static_cast<std::uint32_t>(1 + i * std::uint64_t{calls - 1} / last));
  }
  return chosen;
}

std::string traceOf(const FaultyPhone& phone, const Fault& fault, const FaultyRun& run) {
  std::ostringstream text;
  text << phone.verb() << ": " << describe(fault) << "\nexit code " << run.result.exitCode << "\n"
       << run.result.errors;
  return text.str();
}

}  // namespace phone
