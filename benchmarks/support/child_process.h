// Runs a command as a process of its own and measures it whole.
#pragma once

#include <chrono>
#include <string>
#include <vector>

namespace benchmarks {

struct ChildRun {
  std::chrono::duration<double> wallTime;
  /// The most memory that it had at one time, in bytes.
  double peakMemory;
  /// What it wrote to standard output.
  std::string output;
};

/// Runs the command (a path and its arguments) to its end. Throws std::runtime_error when it cannot be
/// started or does not exit with 0.
ChildRun runCommand(const std::vector<std::string>& command);

}  // namespace benchmarks
