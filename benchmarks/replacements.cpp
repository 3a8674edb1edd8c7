// What each replacement costs: passing through while disabled, and the hot ones while enabled.
#include <algorithm>
#include <benchmark/benchmark.h>

#include "benchmarks/support/allocation_count.h"
#include "benchmarks/support/bounds.h"
#include "benchmarks/support/enabled_list.h"
#include "benchmarks/support/plain_host.h"
#include "phone/objc/plugin.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/springboard/sb_lock_screen_view.h"

namespace {

using benchmarks::EnabledList;
using benchmarks::Measurements;
using objc::Owned;

/// A replaced method, with one way of calling it.
struct PassThrough {
  const char* className;
  const char* selector;
  void (*call)(IMP implementation, id receiver, SEL selector);
  IMP host = nullptr;
};

template <typename Result, typename... Arguments>
void callWith(IMP implementation, id receiver, SEL selector) {
  using Function = Result (*)(id, SEL, Arguments...);
  if constexpr (std::is_void_v<Result>) {
    reinterpret_cast<Function>(implementation)(receiver, selector, Arguments{}...);
  } else {
    benchmark::DoNotOptimize(reinterpret_cast<Function>(implementation)(receiver, selector, Arguments{}...));
  }
}

// The list's loading is not here: it reads its files whether the system is enabled or not.
PassThrough passThroughs[] = {
    {"SBLockScreenPluginOverlayContext",
     "initWithPluginName:pluginController:lockScreenViewController:", callWith<id, id, id, id>},
    {"SBLockScreenNotificationListController", "count", callWith<NSUInteger>},
    {"SBLockScreenNotificationListController", "turnOnScreenIfNecessaryForItem:", callWith<void, id>},
    {"SBAwayBulletinListItem", "iconImage", callWith<id>},
    {"SBAwayBulletinListItem", "canBeClearedByNotificationCenter", callWith<bool>},
    {"SBLockScreenNotificationListView", "tableView:heightForRowAtIndexPath:", callWith<CGFloat, id, id>},
    {"SBLockScreenNotificationListView", "tableView:canEditRowAtIndexPath:", callWith<bool, id, id>},
    {"SBLockScreenBulletinCell", "initWithStyle:reuseIdentifier:", callWith<id, NSInteger, id>},
    {"SBLockScreenBulletinCell", "setContentAlpha:", callWith<void, CGFloat>},
    {"SBLockScreenBulletinCell", "layoutSubviews", callWith<void>},
    {"SBLockScreenView", "initWithFrame:", callWith<id, CGRect>},
    {"SBLockScreenView", "_addLockContentUnderlayWithRequester:", callWith<void, id>},
};

std::string passThroughName(const PassThrough& passThrough, const char* which) {
  return std::string(which) + "/" + passThrough.className + "." + passThrough.selector;
}

void measureCall(benchmark::State& state, const PassThrough& passThrough, bool replaced) {
  const auto receiver = Owned<NSObject>::adopt(
      objc::send<"init", NSObject*>(objc::send<"alloc", id>(objc_getClass(passThrough.className))));
  IMP const implementation =
      replaced ? benchmarks::implementationOf(passThrough.className, passThrough.selector) : passThrough.host;
  SEL const selector = sel_registerName(passThrough.selector);
  for (auto _ : state) passThrough.call(implementation, receiver.get(), selector);
}

constexpr NSUInteger kLongList = 1000;

void countItems(benchmark::State& state, NSString* identifier) {
  EnabledList list(kLongList, identifier);
  auto* const count = reinterpret_cast<NSUInteger (*)(id, SEL)>(
      benchmarks::implementationOf("SBLockScreenNotificationListController", "count"));
  SEL const selector = objc::selector<"count">();
  benchmark::DoNotOptimize(count(list.controller(), selector));
  const std::size_t before = benchmarks::allocationCount();
  for (auto _ : state) benchmark::DoNotOptimize(count(list.controller(), selector));
  state.counters["allocations"] = static_cast<double>(benchmarks::allocationCount() - before);
}

void layOutCell(benchmark::State& state, NSString* identifier) {
  EnabledList list(2, identifier);
  const auto cell = benchmarks::makeCell(list.row());
  auto* const layout = reinterpret_cast<void (*)(id, SEL)>(
      benchmarks::implementationOf("SBLockScreenBulletinCell", "layoutSubviews"));
  for (auto _ : state) layout(cell.get(), objc::selector<"layoutSubviews">());
}

void measureHeight(benchmark::State& state, bool replaced) {
  EnabledList list(2, "com.example.mail"_ns);
  const auto view = objc::make<SBLockScreenNotificationListView>();
  IMP const implementation =
      replaced ? benchmarks::implementationOf("SBLockScreenNotificationListView",
                                              "tableView:heightForRowAtIndexPath:")
               : std::ranges::find(passThroughs, std::string_view("tableView:heightForRowAtIndexPath:"),
                                   &PassThrough::selector)
                     ->host;
  auto* const height = reinterpret_cast<CGFloat (*)(id, SEL, id, id)>(implementation);
  SEL const selector = objc::selector<"tableView:heightForRowAtIndexPath:">();
  for (auto _ : state) benchmark::DoNotOptimize(height(view.get(), selector, nullptr, list.row()));
}

void registerBenchmarks() {
  for (const PassThrough& passThrough : passThroughs) {
    for (const bool replaced : {false, true}) {
      benchmark::RegisterBenchmark(passThroughName(passThrough, replaced ? "disabled" : "host").c_str(),
                                   measureCall, passThrough, replaced);
    }
  }
  benchmark::RegisterBenchmark("count/own", countItems, "Tavimo 7"_ns);
  benchmark::RegisterBenchmark("count/others", countItems, "com.example.mail"_ns);
  benchmark::RegisterBenchmark("layout/own", layOutCell, "Tavimo 7"_ns);
  benchmark::RegisterBenchmark("layout/others", layOutCell, "com.example.mail"_ns);
  benchmark::RegisterBenchmark("height/host", measureHeight, false);
  benchmark::RegisterBenchmark("height/others", measureHeight, true);
}

double largestPassThroughCost(const Measurements& measurements) {
  double largest = 0;
  for (const PassThrough& passThrough : passThroughs) {
    largest = std::max(largest, measurements.cpuTime(passThroughName(passThrough, "disabled")) -
                                    measurements.cpuTime(passThroughName(passThrough, "host")));
  }
  return largest;
}

}  // namespace

int main(int argc, char** argv) {
  const AutoreleasePool pool;
  NSFoundationVersionNumber = 1280.25;
  benchmarks::registerPlainHost();
  for (PassThrough& passThrough : passThroughs) {
    passThrough.host = benchmarks::implementationOf(passThrough.className, passThrough.selector);
  }
  phone::loadPlugin(TAVIMO_LIBRARY);
  registerBenchmarks();
  return benchmarks::runAgainstBounds(
      argc, argv,
      {{"pass-through while disabled, the dearest replacement, over the host's own call", "ns", 5,
        largestPassThroughCost},
       {"count of 1,000 own items, per item", "ns", 150,
        [](const Measurements& m) { return m.cpuTime("count/own") / kLongList; }},
       {"count of 1,000 items of others, per item", "ns", 150,
        [](const Measurements& m) { return m.cpuTime("count/others") / kLongList; }},
       {"count of 1,000 items, heap allocations in all runs", "allocations", 0.5,
        [](const Measurements& m) {
          return m.counter("count/own", "allocations") + m.counter("count/others", "allocations");
        }},
       {"layout of an own cell", "ns", 2000, [](const Measurements& m) { return m.cpuTime("layout/own"); }},
       {"layout of a cell of others", "ns", 500,
        [](const Measurements& m) { return m.cpuTime("layout/others"); }},
       {"height of a row of others, over the host's own", "ns", 200,
        [](const Measurements& m) { return m.cpuTime("height/others") - m.cpuTime("height/host"); }}});
}
