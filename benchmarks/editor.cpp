// What the plug-in costs in the calendar process: a flip of its switch, and the start.
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <cstring>

#include "benchmarks/support/bounds.h"
#include "benchmarks/support/child_process.h"
#include "benchmarks/support/sample_calendar.h"
#include "benchmarks/support/scratch_folder.h"
#include "contract/files.h"
#include "phone/calendarui/calendar_process.h"
#include "phone/foundation/log_sink.h"
#include "phone/objc/plugin.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/objc/class_of.h"
#include "platform/uikit/ui_switch.h"

namespace {

using benchmarks::Measurements;

constexpr int kHiddenEvents = 1000;
constexpr const char* kMeasureStart = "--measure-start";

NSString* hiddenEventsFile() { return constantText<contract::kHiddenEventsFile>(); }

void writeHiddenEvents() {
  const AutoreleasePool pool;
  NSMutableDictionary* const entries = NSMutableDictionary::dictionary();
  for (int i = 0; i < kHiddenEvents; ++i) {
    entries->setObject(
        "N"_ns, NSString::stringWithFormat("x-apple-calevent://2B6F0CC9-04D1-4C3A-9E55/hidden-%d"_ns, i));
  }
  entries->writeToFile(hiddenEventsFile(), true);
}

/// The switch in the plug-in's row of an event view.
UISwitch* ownSwitch(EKEventViewController* view) {
  auto* const items = objc::send<"_items", NSArray*>(view);
  for (NSUInteger i = 0; i < items->count(); ++i) {
    NSObject* const item = items->objectAtIndex(i);
    if (!objc::isOfClass(item, "EKEventDetailItemOrv")) continue;
    objc::send<"cellForSubitemAtIndex:", id>(item, NSUInteger{0});
    return objc::send<"dndSwitch", UISwitch*>(item);
  }
  throw std::runtime_error("the event view has no row of the plug-in");
}

void flipSwitch(benchmark::State& state, UISwitch* toggle) {
  writeHiddenEvents();
  bool on = false;
  for (auto _ : state) {
    const AutoreleasePool pool;
    toggle->setOn(on);
    objc::send<"sendActionsForControlEvents:">(toggle, static_cast<NSUInteger>(UISwitch::kValueChanged));
    on = !on;
  }
}

/// What the flip cannot do without: the dictionary read and written once.
void rewriteDictionary(benchmark::State& state) {
  writeHiddenEvents();
  for (auto _ : state) {
    const AutoreleasePool pool;
    NSMutableDictionary::dictionaryWithContentsOfFile(hiddenEventsFile())
        ->writeToFile(hiddenEventsFile(), true);
  }
}

/// Prints how long the plug-in takes to load into a calendar process that is ready for it, in nanoseconds.
int measureStart(const char* root) {
  const phone::CalendarProcess process = phone::CalendarProcess::boot({.root = root});
  const auto begin = std::chrono::steady_clock::now();
  phone::loadPlugin(TAVIMO_LIBRARY);
  const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - begin;
  std::printf("%f\n", taken.count());
  return 0;
}

void startProcess(benchmark::State& state, const std::string& program, const std::string& root) {
  for (auto _ : state) {
    state.SetIterationTime(std::stod(benchmarks::runCommand({program, kMeasureStart, root}).output) * 1e-9);
  }
}

}  // namespace

int main(int argc, char** argv) {
  const AutoreleasePool pool;
  if (argc == 3 && std::strcmp(argv[1], kMeasureStart) == 0) return measureStart(argv[2]);
  const benchmarks::ScratchFolder root;
  std::filesystem::create_directories(root.path() / "var/mobile/Library/Preferences");
  phone::CalendarProcess process = phone::CalendarProcess::boot(
      {.root = root.path(), .release = "9.3", .now = benchmarks::kNow, .timeZone = "UTC"}, TAVIMO_LIBRARY);
  phone::setLogKeeping(false);
  const std::string calendar = benchmarks::addCalendar("work", 1, 0);
  UISwitch* const toggle = ownSwitch(process.openEvent(calendar + ":work-0"));

  benchmark::RegisterBenchmark("flip/switch", flipSwitch, toggle);
  benchmark::RegisterBenchmark("flip/foundation", rewriteDictionary);
  benchmark::RegisterBenchmark("start", startProcess, std::string("/proc/self/exe"), root.path().string())
      ->UseManualTime()
      ->Iterations(5);
  return benchmarks::runAgainstBounds(
      argc, argv,
      {{"flip of the switch with 1,000 hidden events, over reading and writing them once", "ratio", 1.3,
        [](const Measurements& m) { return m.cpuTime("flip/switch") / m.cpuTime("flip/foundation"); }},
       {"start of the calendar process, the plug-in's share", "ms", 2,
        [](const Measurements& m) { return m.time("start/iterations:5/manual_time") / 1e6; }}});
}
