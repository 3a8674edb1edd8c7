// Every verb, with memory running out at one moment or another. Nothing is torn, and nothing is said that is
// not so; the run ends with a reason, unless a library ends it that takes missing memory for the end (the
// stand-in phone's documentation says which).
#include <cerrno>
#include <gtest/gtest.h>

#include "tests/faults/oracle.h"
#include "tests/faults/sweep.h"
#include "tests/faults/verbs.h"

namespace phone {
namespace {

constexpr std::uint32_t kFewCalls = 6;

class MemoryFaults : public testing::TestWithParam<Verb> {
 protected:
  void strike(const Fault& fault) {
    const FaultyRun run = phone_.run(fault);
    SCOPED_TRACE(traceOf(phone_, fault, run));
    expectNothingTorn(phone_, fault, run);
    expectNoLieBarLooks(phone_, run);
  }

  FaultyPhone phone_{GetParam()};
};

TEST_P(MemoryFaults, MissingMemoryTearsNothingAndIsNoSuccess) {
  for (const std::uint32_t at : chosenOf(phone_.callsOf("memory"), kFewCalls)) {
    for (const bool stays : {false, true}) {
      strike({.call = "memory", .error = std::to_string(ENOMEM), .at = at, .stays = stays});
    }
  }
  for (std::uint32_t seed = 1; seed <= (sweepsAll() ? 200 : 2); ++seed) {
    strike({.call = "memory", .error = std::to_string(ENOMEM), .chance = 10'000, .seed = seed});
  }
}

INSTANTIATE_TEST_SUITE_P(Verbs, MemoryFaults, testing::ValuesIn(verbsToStrike()), nameOfVerb);

}  // namespace
}  // namespace phone
