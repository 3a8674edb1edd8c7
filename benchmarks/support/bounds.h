// Promises about speed and memory: each benchmark program measures with Google Benchmark and then holds its
// figures against their bounds.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace benchmarks {

/// The figures of one run, by benchmark name.
class Measurements {
 public:
  void addTimes(const std::string& benchmark, double realNanoseconds, double cpuNanoseconds) {
    times_[benchmark] = realNanoseconds;
    cpuTimes_[benchmark] = cpuNanoseconds;
  }
  void addCounter(const std::string& benchmark, const std::string& counter, double value) {
    counters_[benchmark + "/" + counter] = value;
  }

  /// Median time of one iteration, in nanoseconds. Throws std::runtime_error for a benchmark that did not
  /// run.
  double time(const std::string& benchmark) const;
  /// The same in processor time, which other programs on the machine disturb less.
  double cpuTime(const std::string& benchmark) const;
  /// Median of a counter that the benchmark reports.
  double counter(const std::string& benchmark, const std::string& name) const;

 private:
  std::map<std::string, double> times_;
  std::map<std::string, double> cpuTimes_;
  std::map<std::string, double> counters_;
};

/// A figure and the most that it may be. Without a limit the figure is only reported.
struct Bound {
  std::string what;
  std::string unit;
  double limit;
  std::function<double(const Measurements&)> measured;
};

inline constexpr double kNoLimit = 0;

/// Runs the registered benchmarks, prints what they measured to standard error and the bounds with their
/// verdicts, a line each, to standard output, and writes the latter as JSON to the file that
/// `--bounds-json=FILE` names. Gives the exit code: 1 when a bound does not hold.
int runAgainstBounds(int argc, char** argv, const std::vector<Bound>& bounds);

}  // namespace benchmarks
