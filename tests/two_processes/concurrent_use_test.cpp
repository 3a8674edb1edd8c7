// Writers and readers of one store at the same time.
#include <gtest/gtest.h>
#include <stdexcept>

#include "phone/springboard/home_screen.h"
#include "tests/support/built.h"
#include "tests/two_processes/child_process.h"
#include "tests/two_processes/shared_phone.h"

namespace phone::test {
namespace {

constexpr int kFlips = 2'000;
constexpr std::size_t kOtherEntries = 100;

std::string flip(const SharedPhone& shared, const std::string& event) {
  shared.flip(event, kFlips);
  return "flipped";
}

/// Reads the store again and again, and the lock screen with it now and then. Every whole store hides the
/// event of that title.
std::string read(const SharedPhone& shared, const std::string& hidden) {
  constexpr int kReadsPerLoad = 20;
  auto homeScreen = HomeScreen::boot(shared.options(), pluginLibrary());
  std::size_t rowsSeen = 0;
  for (int i = 0; i < kFlips; ++i) {
    // The plug-in takes a torn store for an empty one; this reader throws.
    if (shared.readStore().size() <= kOtherEntries) throw std::runtime_error("Entries were lost.");
    if (i % kReadsPerLoad != 0) continue;
    homeScreen.load();
    for (const ListRow& row : homeScreen.rows()) {
      ++rowsSeen;
      if (row.title == hidden) throw std::runtime_error("A hidden event was shown.");
    }
  }
  return rowsSeen > 0 ? "read" : "never saw an event";
}

TEST(ConcurrentUse, neverTearsTheStore) {
  const SharedPhone shared;
  const std::string first = shared.addEvent("First");
  const std::string second = shared.addEvent("Second");
  const std::string hidden = shared.addEvent("Hidden");
  shared.writeStore(otherKeys(kOtherEntries));
  ASSERT_TRUE(runInChild([&] { return shared.flip(hidden, 1), std::string(); }).exitedClean);
  ASSERT_EQ(shared.readStore().size(), kOtherEntries + 1);

  ChildProcess firstWriter([&] { return flip(shared, first); });
  ChildProcess secondWriter([&] { return flip(shared, second); });
  ChildProcess firstReader([&] { return read(shared, "Hidden"); });
  ChildProcess secondReader([&] { return read(shared, "Hidden"); });
  for (ChildProcess* const writer : {&firstWriter, &secondWriter}) {
    const ChildResult result = writer->wait();
    EXPECT_TRUE(result.exitedClean);
    EXPECT_EQ(result.output, "flipped");
  }
  for (ChildProcess* const reader : {&firstReader, &secondReader}) {
    const ChildResult result = reader->wait();
    EXPECT_TRUE(result.exitedClean);
    EXPECT_EQ(result.output, "read");
  }
  // Of two writes that overlap the later one wins, so either writer's own entry may have come back.
  EXPECT_GE(shared.readStore().size(), kOtherEntries + 1);
  EXPECT_LE(shared.readStore().size(), kOtherEntries + 3);
  EXPECT_EQ(shared.filesBesideStore(), std::set<std::string>{shared.store().filename()});
}

}  // namespace
}  // namespace phone::test
