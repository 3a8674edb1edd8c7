// What a load of the lock screen list costs: over a large calendar, per event, and in memory.
#include <benchmark/benchmark.h>
#include <chrono>
#include <ctime>
#include <malloc.h>

#include "benchmarks/support/bounds.h"
#include "benchmarks/support/sample_calendar.h"
#include "benchmarks/support/scratch_folder.h"
#include "phone/foundation/property_list.h"
#include "phone/objc/hooking.h"
#include "phone/objc/plugin.h"
#include "phone/springboard/home_screen.h"
#include "platform/foundation/autorelease_pool.h"

namespace {

/// Processor time of this process, which other programs on the machine disturb less than real time.
struct Clock {
  using duration = std::chrono::nanoseconds;
  static duration now() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
  }
};
using benchmarks::Measurements;

constexpr int kFewEvents = 10;
constexpr int kManyEvents = 1000;

/// The time that one part of the host has taken inside a load.
struct Stopwatch {
  Clock::duration taken{};
};
Stopwatch wholeLoad;
Stopwatch hostLoadView;
Stopwatch calendarStore;
Stopwatch listChanges;
int runningStopwatches = 0;

/// Counts towards the outermost stopwatch only: what one host method calls is that method's time.
class Running {
 public:
  explicit Running(Stopwatch& stopwatch) : stopwatch_(stopwatch), begin_(Clock::now()) {
    ++runningStopwatches;
  }
  ~Running() {
    if (--runningStopwatches == 0) stopwatch_.taken += Clock::now() - begin_;
  }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

 private:
  Stopwatch& stopwatch_;
  Clock::duration begin_;
};

/// A replacement that times the host's method; hooked before the plug-in, so that the plug-in displaces it.
template <Stopwatch& Watch, int Slot, typename Result, typename... Arguments>
struct Timed {
  static inline objc::Displaced<Result(id, SEL, Arguments...)> displaced;
  static Result call(id self, SEL selector, Arguments... arguments) {
    const Running running(Watch);
    return displaced(self, selector, arguments...);
  }
  static void install(const char* className, const char* selector) {
    phone::hookMethod(static_cast<Class>(objc_getClass(className)), selector, call, displaced);
  }
};

constexpr const char* kController = "SBLockScreenNotificationListController";

/// Hooked after the plug-in, around everything that the host's call of loadView starts.
objc::Displaced<void(id, SEL)> pluginLoadView;
void timedLoadView(id self, SEL selector) {
  const auto begin = Clock::now();
  pluginLoadView(self, selector);
  wholeLoad.taken += Clock::now() - begin;
}

void installStopwatches() {
  Timed<hostLoadView, 0, void>::install(kController, "loadView");
  Timed<listChanges, 0, void, id, id, NSUInteger, bool, id>::install(
      kController, "observer:addBulletin:forFeed:playLightsAndSirens:withReply:");
  Timed<listChanges, 1, void, id, id>::install(kController, "observer:removeBulletin:");
  Timed<calendarStore, 0, id>::install("EKEventStore", "init");
  Timed<calendarStore, 1, id, id>::install("EKEventStore", "calendarWithIdentifier:");
  Timed<calendarStore, 2, id, id, id, id>::install("EKEventStore",
                                                   "predicateForEventsWithStartDate:endDate:calendars:");
  Timed<calendarStore, 3, id, id>::install("EKEventStore", "eventsMatchingPredicate:");
}

/// A calendar that comes into the database when it is first selected.
class Calendar {
 public:
  Calendar(std::string name, int inRange, int others)
      : name_(std::move(name)), inRange_(inRange), others_(others) {}

  int eventsInRange() const { return inRange_; }

  /// Makes the calendar the only one that is searched.
  void select() {
    if (identifier_.empty()) identifier_ = benchmarks::addCalendar(name_, inRange_, others_);
    benchmarks::searchOnly(identifier_);
  }

 private:
  std::string name_;
  int inRange_;
  int others_;
  std::string identifier_;
};

double nanoseconds(Clock::duration duration) {
  return std::chrono::duration<double, std::nano>(duration).count();
}

/// Loads the list; reports what is the plug-in's own, what the store takes, and the cost per event.
void load(benchmark::State& state, phone::HomeScreen& phone, Calendar& calendar) {
  calendar.select();
  phone.load();
  double own = 0;
  double store = 0;
  for (auto _ : state) {
    wholeLoad = hostLoadView = calendarStore = listChanges = {};
    phone.load();
    const double host = nanoseconds(hostLoadView.taken) + nanoseconds(listChanges.taken);
    const double query = nanoseconds(calendarStore.taken);
    const double whole = nanoseconds(wholeLoad.taken);
    own += whole - host - query;
    store += query;
    state.SetIterationTime((whole - host) * 1e-9);
  }
  if (*phone::pluginSymbol<NSInteger>("tvmItemsCount") != calendar.eventsInRange())
    state.SkipWithError("not all events were found");
  using benchmark::Counter;
  state.counters["own_ns"] = Counter(own, Counter::kAvgIterations);
  state.counters["store_ns"] = Counter(store, Counter::kAvgIterations);
  state.counters["own_ns_per_event"] = Counter(own / calendar.eventsInRange(), Counter::kAvgIterations);
}

double heapInUse() { return static_cast<double>(mallinfo2().uordblks); }

double bytesPerRecord(phone::HomeScreen& phone, Calendar& few, Calendar& many) {
  few.select();
  phone.load();
  const double before = heapInUse();
  many.select();
  phone.load();
  return (heapInUse() - before) / (kManyEvents - kFewEvents);
}

double growthOverThousandLoads(phone::HomeScreen& phone, Calendar& calendar) {
  calendar.select();
  for (int i = 0; i < 10; ++i) phone.load();
  const double before = heapInUse();
  for (int i = 10; i < 1000; ++i) phone.load();
  return heapInUse() - before;
}

}  // namespace

int main(int argc, char** argv) {
  const AutoreleasePool pool;
  const benchmarks::ScratchFolder root;
  std::filesystem::create_directories(root.path() / "var/mobile/Library/Preferences");
  phone::HomeScreen phone = phone::HomeScreen::boot(
      {.root = root.path(), .release = "9.3", .now = benchmarks::kNow, .timeZone = "UTC"});
  installStopwatches();
  phone::loadPlugin(TAVIMO_LIBRARY);
  phone::hookMethod(static_cast<Class>(objc_getClass(kController)), "loadView", timedLoadView,
                    pluginLoadView);

  // Each calendar comes into the database when its turn comes: the first one is measured alone.
  const auto add = [&phone](const char* name, Calendar& calendar) {
    benchmark::RegisterBenchmark(name, [&phone, &calendar](benchmark::State& state) {
      load(state, phone, calendar);
    })->UseManualTime();
  };
  Calendar large("large", 20, 49'980);
  Calendar few("few", kFewEvents, 0);
  Calendar many("many", kManyEvents, 0);
  add("load/large", large);
  add("load/few", few);
  add("load/many", many);
  return benchmarks::runAgainstBounds(
      argc, argv,
      {{"load over 50,000 events with 20 in range: store and plug-in", "ms", 15,
        [](const Measurements& m) { return m.time("load/large/manual_time") / 1e6; }},
       {"the plug-in's own share of it", "ms", 1,
        [](const Measurements& m) { return m.counter("load/large/manual_time", "own_ns") / 1e6; }},
       {"the plug-in's own cost per event, 1,000 over 10 events", "ratio", 1.3,
        [](const Measurements& m) {
          return m.counter("load/many/manual_time", "own_ns_per_event") /
                 m.counter("load/few/manual_time", "own_ns_per_event");
        }},
       {"memory per published record, host's part included", "bytes", benchmarks::kNoLimit,
        [&](const Measurements&) { return bytesPerRecord(phone, few, many); }},
       {"memory after 1,000 loads over memory after 10", "KiB", 64,
        [&](const Measurements&) { return growthOverThousandLoads(phone, large) / 1024; }}});
}
