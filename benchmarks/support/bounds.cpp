#include "benchmarks/support/bounds.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iostream>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string_view>

namespace benchmarks {

namespace {

/// Prints as the console reporter does and keeps every median.
class MedianReporter : public benchmark::ConsoleReporter {
 public:
  explicit MedianReporter(Measurements& measurements)
      : ConsoleReporter(OO_None), measurements_(measurements) {}

  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.error_occurred) throw std::runtime_error(run.benchmark_name() + ": " + run.error_message);
      if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "median") continue;
      const std::string name = run.run_name.str();
      const double perSecond = benchmark::GetTimeUnitMultiplier(run.time_unit);
      measurements_.addTimes(name, run.GetAdjustedRealTime() / perSecond * 1e9,
                             run.GetAdjustedCPUTime() / perSecond * 1e9);
      for (const auto& [counter, value] : run.counters) measurements_.addCounter(name, counter, value.value);
    }
  }

 private:
  Measurements& measurements_;
};

double lookUp(const std::map<std::string, double>& figures, const std::string& name) {
  const auto found = figures.find(name);
  if (found == figures.end()) throw std::runtime_error("no measurement named " + name);
  return found->second;
}

/// Takes `--bounds-json=FILE` out of the arguments; empty when it is not there.
std::string takeJsonPath(int& argc, char** argv) {
  constexpr std::string_view kFlag = "--bounds-json=";
  for (int i = 1; i < argc; ++i) {
    if (!std::string_view(argv[i]).starts_with(kFlag)) continue;
    std::string path = argv[i] + kFlag.size();
    std::move(argv + i + 1, argv + argc, argv + i);
    --argc;
    return path;
  }
  return {};
}

const char* verdict(const Bound& bound, double measured) {
  if (bound.limit == kNoLimit) return "reported";
  return measured <= bound.limit ? "holds" : "BROKEN";
}

}  // namespace

double Measurements::time(const std::string& benchmark) const { return lookUp(times_, benchmark); }

double Measurements::cpuTime(const std::string& benchmark) const { return lookUp(cpuTimes_, benchmark); }

double Measurements::counter(const std::string& benchmark, const std::string& name) const {
  return lookUp(counters_, benchmark + "/" + name);
}

int runAgainstBounds(int argc, char** argv, const std::vector<Bound>& bounds) try {
  const std::string jsonPath = takeJsonPath(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  Measurements measurements;
  MedianReporter reporter(measurements);
  benchmark::RunSpecifiedBenchmarks(&reporter);

  nlohmann::json rows = nlohmann::json::array();
  bool allHold = true;
  for (const Bound& bound : bounds) {
    const double measured = bound.measured(measurements);
    const char* const result = verdict(bound, measured);
    allHold = allHold && std::strcmp(result, "BROKEN") != 0;
    const std::string limit = bound.limit == kNoLimit ? "-" : std::to_string(bound.limit).substr(0, 8);
    std::printf("%-88s %12.3f %12s  %s\n", (bound.what + " (" + bound.unit + ")").c_str(), measured,
                limit.c_str(), result);
    rows.push_back({{"what", bound.what}, {"unit", bound.unit}, {"measured", measured}, {"verdict", result}});
    if (bound.limit != kNoLimit) rows.back()["bound"] = bound.limit;
  }
  if (!jsonPath.empty()) std::ofstream(jsonPath) << rows.dump(2) << '\n';
  return allHold ? 0 : 1;
} catch (const std::exception& error) {
  std::fprintf(stderr, "benchmarks cannot be evaluated: %s\n", error.what());
  return 2;
}

}  // namespace benchmarks
