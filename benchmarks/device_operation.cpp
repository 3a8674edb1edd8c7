// One operation of the plug-in, so many times: what scripts/bench --device counts the instructions of.
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <iostream>
#include <map>
#include <stdexcept>

#include "benchmarks/support/enabled_list.h"
#include "benchmarks/support/sample_calendar.h"
#include "benchmarks/support/scratch_folder.h"
#include "phone/objc/plugin.h"
#include "phone/springboard/home_screen.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/literal.h"

namespace {

void bootPlainHost() {
  NSFoundationVersionNumber = 1280.25;
  benchmarks::registerPlainHost();
  phone::loadPlugin(TAVIMO_LIBRARY);
}

/// The implementation that answers the message, of a method with that signature.
template <typename Method>
Method* answerTo(const char* className, const char* selector) {
  return reinterpret_cast<Method*>(benchmarks::implementationOf(className, selector));
}

void layOutCell(id cell, int times) {
  auto* const layout = answerTo<void(id, SEL)>("SBLockScreenBulletinCell", "layoutSubviews");
  for (int i = 0; i < times; ++i) layout(cell, objc::selector<"layoutSubviews">());
}

void passThrough(int times) {
  bootPlainHost();
  const auto row = benchmarks::makeRow(0);
  layOutCell(objc::asObject(benchmarks::makeCell(row.get()).get()), times);
}

void countItems(int times) {
  bootPlainHost();
  benchmarks::EnabledList list(20, "Tavimo 7"_ns);
  auto* const count = answerTo<NSUInteger(id, SEL)>("SBLockScreenNotificationListController", "count");
  for (int i = 0; i < times; ++i) count(objc::asObject(list.controller()), objc::selector<"count">());
}

void layOutOwnCell(int times) {
  bootPlainHost();
  benchmarks::EnabledList list(2, "Tavimo 7"_ns);
  layOutCell(objc::asObject(benchmarks::makeCell(list.row()).get()), times);
}

void load(int times) {
  constexpr int kEvents = 20;
  const benchmarks::ScratchFolder root;
  std::filesystem::create_directories(root.path() / "var/mobile/Library/Preferences");
  phone::HomeScreen phone = phone::HomeScreen::boot(
      {.root = root.path(), .release = "9.3", .now = benchmarks::kNow, .timeZone = "UTC"});
  phone::loadPlugin(TAVIMO_LIBRARY);
  benchmarks::searchOnly(benchmarks::addCalendar("Work", kEvents, 0));
  for (int i = 0; i < times; ++i) phone.load();
  if (times > 0 && *phone::pluginSymbol<NSInteger>("tvmItemsCount") != kEvents) {
    throw std::runtime_error("not all events were found");
  }
}

}  // namespace

int main(int argc, char** argv) try {
  const std::map<std::string, std::function<void(int)>> operations = {
      {"pass-through", passThrough}, {"count", countItems}, {"layout", layOutOwnCell}, {"load", load}};
  const auto operation = operations.find(argc == 3 ? argv[1] : "");
  if (operation == operations.end()) {
    throw std::runtime_error("wanted: pass-through, count, layout or load, and how often");
  }
  const AutoreleasePool pool;
  operation->second(std::atoi(argv[2]));
} catch (const std::exception& error) {
  std::cerr << "device_operation: " << error.what() << "\n";
  return EXIT_FAILURE;
}
