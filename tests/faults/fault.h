// One fault to strike a run of the `phone` command with, and what came of it.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>

namespace phone {

/// The calls of one kind that are struck, see library/plan.h.
struct Fault {
  /// "open", "read", "write", "sync", "rename", "truncate", "remove", "folder" or "memory".
  std::string call;
  /// An error number, or kCutShort or kKilled.
  std::string error;
  /// Which call of the kind, counted from 1; 0 strikes none and only counts.
  std::uint32_t at = 0;
  /// Whether all later ones are struck, too.
  bool stays = false;
  /// One call in so many instead; 0 for `at`.
  std::uint32_t chance = 0;
  std::uint32_t seed = 0;
};

inline constexpr const char* kCutShort = "short";
inline constexpr const char* kKilled = "kill";

/// "call 3 of write gives ENOSPC, as do those after it".
std::string describe(const Fault& fault);

struct Tally {
  std::uint32_t calls = 0;
  std::uint32_t struck = 0;
};

/// The environment that makes the fault happen to a program, on files below the folder; the counters go to
/// the tally's file, which is made anew.
std::map<std::string, std::string> environmentFor(const Fault& fault, const std::filesystem::path& folder,
                                                  const std::filesystem::path& tally);

/// What the run counted.
Tally readTally(const std::filesystem::path& tally);

}  // namespace phone
