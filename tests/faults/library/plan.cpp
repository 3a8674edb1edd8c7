#include "tests/faults/library/plan.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace faults {

namespace {

constexpr std::array<std::string_view, 9> kNames{"open",     "read",   "write",  "sync",  "rename",
                                                 "truncate", "remove", "folder", "memory"};

struct Tally {
  std::atomic<std::uint32_t> calls;
  std::atomic<std::uint32_t> struck;
};

struct Plan {
  Call call{};
  std::uint32_t at = 0;
  bool stays = false;
  std::uint32_t chance = 0;
  std::uint32_t seed = 0;
  Outcome outcome = Outcome::kFails;
  int error = 0;
  std::array<char, PATH_MAX> below{};
  Tally* tally = nullptr;
};

Plan plan;
std::atomic<bool> armed = false;

std::uint32_t numberIn(const char* name) {
  const char* const text = std::getenv(name);
  return text == nullptr ? 0 : static_cast<std::uint32_t>(std::strtoul(text, nullptr, 10));
}

std::string_view textIn(const char* name) {
  const char* const text = std::getenv(name);
  return text == nullptr ? std::string_view() : text;
}

/// Memory that outlives the process, however it ends.
Tally* openTally() {
  const char* const file = std::getenv("FAULT_TALLY");
  if (file == nullptr) return nullptr;
  // Not by the names that this library stands in for.
  const long descriptor = syscall(SYS_openat, AT_FDCWD, file, O_RDWR | O_CLOEXEC);
  if (descriptor < 0) return nullptr;
  void* const memory =
      mmap(nullptr, sizeof(Tally), PROT_READ | PROT_WRITE, MAP_SHARED, static_cast<int>(descriptor), 0);
  syscall(SYS_close, descriptor);
  return memory == MAP_FAILED ? nullptr : static_cast<Tally*>(memory);
}

/// Evenly spread bits of a number.
std::uint32_t scatter(std::uint32_t number) {
  number = (number ^ number >> 16) * 0x45d9f3bU;
  number = (number ^ number >> 16) * 0x45d9f3bU;
  return number ^ number >> 16;
}

bool isStruck(std::uint32_t number) {
  if (plan.chance > 0) return scatter(number * 2654435761U + plan.seed) % plan.chance == 0;
  return plan.at > 0 && (number == plan.at || (plan.stays && number > plan.at));
}

bool isBelow(std::string_view path) {
  const std::string_view folder(plan.below.data());
  return folder.empty() ||
         (path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/'));
}

}  // namespace

void arm() {
  const std::string_view name = textIn("FAULT_CALL");
  const auto* const kind = std::find(kNames.begin(), kNames.end(), name);
  plan.tally = openTally();
  if (kind == kNames.end() || plan.tally == nullptr) return;
  plan.call = static_cast<Call>(kind - kNames.begin());
  plan.at = numberIn("FAULT_AT");
  plan.stays = numberIn("FAULT_STAYS") != 0;
  plan.chance = numberIn("FAULT_CHANCE");
  plan.seed = scatter(numberIn("FAULT_SEED"));
  const std::string_view error = textIn("FAULT_ERROR");
  if (error == "short") plan.outcome = Outcome::kIsCutShort;
  if (error == "kill") plan.outcome = Outcome::kIsLast;
  plan.error = static_cast<int>(numberIn("FAULT_ERROR"));
  textIn("FAULT_BELOW").copy(plan.below.data(), plan.below.size() - 1);
  armed = true;
}

Outcome outcomeOf(Call call) {
  if (!armed || call != plan.call) return Outcome::kGoesOn;
  if (!isStruck(++plan.tally->calls)) return Outcome::kGoesOn;
  ++plan.tally->struck;
  return plan.outcome;
}

Outcome outcomeOf(Call call, const char* path) {
  if (!armed || call != plan.call || path == nullptr) return Outcome::kGoesOn;
  if (*path == '/') return isBelow(path) ? outcomeOf(call) : Outcome::kGoesOn;
  std::array<char, PATH_MAX> folder{};
  const int before = errno;
  const bool known = getcwd(folder.data(), folder.size()) != nullptr;
  errno = before;
  return known && isBelow(folder.data()) ? outcomeOf(call) : Outcome::kGoesOn;
}

Outcome outcomeOf(Call call, int descriptor) {
  if (!armed || call != plan.call) return Outcome::kGoesOn;
  std::array<char, 40> link{};
  std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", descriptor);
  std::array<char, PATH_MAX> path{};
  const int before = errno;
  const bool known = readlink(link.data(), path.data(), path.size() - 1) > 0;
  errno = before;
  return known && isBelow(path.data()) ? outcomeOf(call) : Outcome::kGoesOn;
}

int failure() { return plan.error; }

void die() {
  kill(getpid(), SIGKILL);
  for (;;) pause();
}

}  // namespace faults
