// What whole commands cost, from start to exit: importing a large calendar and showing the lock screen over
// it.
#include <algorithm>
#include <benchmark/benchmark.h>

#include "benchmarks/support/bounds.h"
#include "benchmarks/support/calendar_file.h"
#include "benchmarks/support/child_process.h"
#include "benchmarks/support/scratch_folder.h"

namespace {

using benchmarks::Measurements;
using Command = std::vector<std::string>;

constexpr int kLargeCalendar = 50'000;
constexpr int kSmallCalendar = 1'000;

/// A phone of its own that has one calendar file to import.
struct Phone {
  std::filesystem::path root;
  std::filesystem::path calendar;

  Command command(const Command& words) const {
    Command whole = {PHONE_COMMAND, "--root", root.string()};
    whole.insert(whole.end(), words.begin(), words.end());
    return whole;
  }
  Command import() const { return command({"import", calendar.string()}); }
  Command lockScreen() const { return command({"lockscreen", "--json", "--now", "2018-03-07T09:00:00Z"}); }

  void makeAnew() const {
    std::filesystem::remove_all(root);
    benchmarks::runCommand(command({"create"}));
  }
};

Phone makePhone(const std::filesystem::path& folder, const std::string& name, int events) {
  Phone phone{folder / name, folder / (name + ".ics")};
  benchmarks::writeCalendarFile(phone.calendar, events);
  phone.makeAnew();
  return phone;
}

void record(benchmark::State& state, const benchmarks::ChildRun& run) {
  state.SetIterationTime(run.wallTime.count());
  double& peak = state.counters["peak_bytes"].value;
  peak = std::max(peak, run.peakMemory);
}

void measureImport(benchmark::State& state, const Phone& phone) {
  for (auto _ : state) {
    phone.makeAnew();
    record(state, benchmarks::runCommand(phone.import()));
  }
}

void measureCommand(benchmark::State& state, const Command& command) {
  for (auto _ : state) record(state, benchmarks::runCommand(command));
}

double milliseconds(const Measurements& measurements, const std::string& command, int iterations) {
  return measurements.time(command + "/iterations:" + std::to_string(iterations) + "/manual_time") / 1e6;
}

}  // namespace

int main(int argc, char** argv) {
  const benchmarks::ScratchFolder folder;
  const Phone large = makePhone(folder.path(), "large", kLargeCalendar);
  const Phone small = makePhone(folder.path(), "small", kSmallCalendar);
  benchmarks::runCommand(small.import());

  const auto add = [](const char* name, int iterations, auto... measured) {
    benchmark::RegisterBenchmark(name, measured...)
        ->UseManualTime()
        ->Iterations(iterations)
        ->Unit(benchmark::kMillisecond);
  };
  add("libical", 1, measureCommand, Command{LIBICAL_ALONE, large.calendar.string()});
  add("import", 1, measureImport, large);
  add("lockscreen/large", 5, measureCommand, large.lockScreen());
  add("lockscreen/small", 5, measureCommand, small.lockScreen());
  return benchmarks::runAgainstBounds(
      argc, argv,
      {{"import of 50,000 events over libical alone, parsing and expanding the same file", "ratio", 1.5,
        [](const Measurements& m) { return milliseconds(m, "import", 1) / milliseconds(m, "libical", 1); }},
       {"peak memory of that import", "MB", 200,
        [](const Measurements& m) {
          return m.counter("import/iterations:1/manual_time", "peak_bytes") / 1e6;
        }},
       {"phone lockscreen --json over 50,000 events, start to exit", "ms", 100,
        [](const Measurements& m) { return milliseconds(m, "lockscreen/large", 5); }},
       {"the same over 50,000 events over 1,000 events", "ratio", 1.5, [](const Measurements& m) {
          return milliseconds(m, "lockscreen/large", 5) / milliseconds(m, "lockscreen/small", 5);
        }}});
}
