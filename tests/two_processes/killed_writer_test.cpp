// Writers that are killed while they write.
#include <gtest/gtest.h>
#include <random>
#include <stdexcept>
#include <unistd.h>

#include "phone/calendarui/calendar_process.h"
#include "tests/support/built.h"
#include "tests/two_processes/child_process.h"
#include "tests/two_processes/shared_phone.h"

namespace phone::test {
namespace {

constexpr int kRounds = 500;

struct Tally {
  int hidden = 0;
  int leftovers = 0;
};

/// Kills a writer at a random moment and looks at what it left.
void killOneWriter(const SharedPhone& shared, const std::vector<std::string>& others,
                   const std::function<std::string()>& write, useconds_t delayMicroseconds, Tally& tally) {
  ChildProcess writer(write);
  usleep(delayMicroseconds);
  if (!writer.kill()) throw std::runtime_error("The writer ended by itself.");
  std::set<std::string> keys = shared.readStore();
  for (const std::string& other : others) {
    if (keys.erase(other) != 1) throw std::runtime_error("An entry was lost.");
  }
  if (keys.size() > 1) throw std::runtime_error("The store has an entry that nobody wrote.");
  tally.hidden += static_cast<int>(keys.size());
  tally.leftovers += shared.filesBesideStore().size() > 1 ? 1 : 0;
}

TEST(KilledWriter, leavesTheOldStoreOrTheNew) {
  const SharedPhone shared;
  const std::string event = shared.addEvent("Dentist");
  const std::vector<std::string> others = otherKeys(200);
  shared.writeStore(others);

  // The calendar is booted once, and every round kills a copy of its process.
  const ChildResult result = runInChild([&] {
    auto calendar = CalendarProcess::boot(shared.options(), pluginLibrary());
    EKEventViewController* const view = calendar.openEvent(event);
    const auto write = [&]() -> std::string {
      for (bool on = false;; on = !on) calendar.setSwitch(view, kRow, on);
    };
    std::mt19937 random(4);
    useconds_t longestDelay = 20'000;
    Tally tally;
    for (int i = 0; i < kRounds; ++i) {
      // A busy machine, or a sanitizer, keeps a writer from its first write for longer.
      if (i % 25 == 24 && tally.hidden == 0) longestDelay *= 2;
      std::uniform_int_distribution<useconds_t> delay(0, longestDelay);
      killOneWriter(shared, others, write, delay(random), tally);
    }
    // Had no writer been caught between its two writes, the rounds above would have shown nothing.
    if (tally.hidden == 0 || tally.hidden == kRounds) throw std::runtime_error("Every store was the same.");
    if (tally.leftovers == 0) throw std::runtime_error("No writer was caught at its work.");
    return std::to_string(tally.leftovers) + " leftovers, " + std::to_string(tally.hidden) + " hidden";
  });
  ASSERT_TRUE(result.exitedClean) << result.output;
  RecordProperty("caught", result.output);

  // What they left does not disturb the next writer, who takes it away.
  ASSERT_TRUE(runInChild([&] { return shared.flip(event, 2), std::string(); }).exitedClean);
  EXPECT_EQ(shared.readStore().size(), others.size());
  EXPECT_EQ(shared.filesBesideStore(), std::set<std::string>{shared.store().filename()});
}

}  // namespace
}  // namespace phone::test
