#include "tests/faults/fault.h"

#include <array>
#include <cstring>
#include <fstream>

namespace phone {

namespace {

/// Memory is everybody's; of files, only those of the phone and of the command's own output are struck.
bool concernsFiles(const Fault& fault) { return fault.call != "memory"; }

std::string nameOf(const std::string& error) {
  if (error == kCutShort) return "is cut short";
  if (error == kKilled) return "is the last of a killed process";
  return std::string("gives ") + strerrorname_np(std::stoi(error));
}

}  // namespace

std::string describe(const Fault& fault) {
  const std::string which = fault.chance > 0 ? "one in " + std::to_string(fault.chance) + " calls (seed " +
                                                   std::to_string(fault.seed) + ")"
                                             : "call " + std::to_string(fault.at);
  return which + " of " + fault.call + " " + nameOf(fault.error) +
         (fault.stays ? ", as do those after it" : "");
}

std::map<std::string, std::string> environmentFor(const Fault& fault, const std::filesystem::path& folder,
                                                  const std::filesystem::path& tally) {
  constexpr std::array<char, sizeof(Tally)> kNothingYet{};
  std::ofstream(tally, std::ios::binary).write(kNothingYet.data(), kNothingYet.size());
  return {{"LD_PRELOAD", FAULT_LIBRARY},
          {"FAULT_CALL", fault.call},
          {"FAULT_ERROR", fault.error},
          {"FAULT_AT", std::to_string(fault.at)},
          {"FAULT_STAYS", fault.stays ? "1" : "0"},
          {"FAULT_CHANCE", std::to_string(fault.chance)},
          {"FAULT_SEED", std::to_string(fault.seed)},
          {"FAULT_BELOW", concernsFiles(fault) ? folder.string() : ""},
          {"FAULT_TALLY", tally.string()}};
}

Tally readTally(const std::filesystem::path& tally) {
  Tally read;
  std::ifstream stream(tally, std::ios::binary);
  stream.read(reinterpret_cast<char*>(&read), sizeof(read));
  return read;
}

}  // namespace phone
