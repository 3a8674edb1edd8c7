// Every verb, with calls on the phone's files and on its output struck one after the other: nothing is torn,
// nothing is said that is not so, and every error names its file.
#include <cerrno>
#include <gtest/gtest.h>

#include "tests/faults/oracle.h"
#include "tests/faults/sweep.h"
#include "tests/faults/verbs.h"

namespace phone {
namespace {

constexpr std::uint32_t kFewCalls = 3;

std::string number(int error) { return std::to_string(error); }

class FileFaults : public testing::TestWithParam<Verb> {
 protected:
  /// Strikes the chosen calls of the fault's kind, and gives each run to the check.
  template <typename Check>
  void strike(Fault fault, Check check) {
    const auto [known, isNew] = calls_.try_emplace(fault.call);
    if (isNew) known->second = phone_.callsOf(fault.call);
    for (const std::uint32_t at : chosenOf(known->second, kFewCalls)) {
      fault.at = at;
      const FaultyRun run = phone_.run(fault);
      SCOPED_TRACE(traceOf(phone_, fault, run));
      EXPECT_GT(run.tally.struck, 0U) << "nothing was struck";
      expectNothingTorn(phone_, fault, run);
      check(run);
    }
  }

  void expectNextRunWorks() {
    const FaultyRun next = phone_.runAgain();
    if (!phone_.verb().refusesLeftovers || next.result.exitCode == 0) return expectWhole(phone_, next);
    expectReason(next);
    expectFileNamed(phone_, next);
  }

  FaultyPhone phone_{GetParam()};
  std::map<std::string, std::uint32_t> calls_;
};

TEST_P(FileFaults, FailedCallLeavesWholeFilesAndAnHonestError) {
  const std::vector<Fault> faults{
      {"open", number(EACCES)},   {"open", number(EMFILE), 0, true},
      {"read", number(EIO)},      {"read", number(EIO), 0, true},
      {"write", number(EIO)},     {"write", number(ENOSPC), 0, true},
      {"sync", number(EIO)},      {"rename", number(EIO)},
      {"truncate", number(EIO)},  {"remove", number(EACCES), 0, true},
      {"folder", number(ENOSPC)},
  };
  for (const Fault& fault : faults) {
    strike(fault, [this](const FaultyRun& run) {
      expectNoLie(phone_, run);
      expectReason(run);
      expectFileNamed(phone_, run);
    });
  }
}

TEST_P(FileFaults, InterruptedAndShortCallsAreGoneOnWith) {
  for (const char* call : {"open", "read", "write"}) {
    strike({call, number(EINTR)}, [this](const FaultyRun& run) { expectWhole(phone_, run); });
  }
  for (const char* call : {"read", "write"}) {
    strike({call, kCutShort}, [this](const FaultyRun& run) { expectWhole(phone_, run); });
  }
}

TEST_P(FileFaults, DeathInACallLeavesWholeFilesAndTheNextRunDoesTheRest) {
  for (const char* call : {"write", "sync", "rename", "remove", "folder"}) {
    strike({call, kKilled}, [this](const FaultyRun& run) {
      EXPECT_TRUE(run.wasEndedBySignal());
      if (changedNothing(phone_, run)) expectNextRunWorks();
    });
  }
}

/// Bad luck that comes again and again, at moments that no list of calls has together.
TEST_P(FileFaults, CallsThatFailAtRandomLeaveWholeFilesAndAnHonestError) {
  for (std::uint32_t seed = 1; seed <= (sweepsAll() ? 200 : 2); ++seed) {
    for (const char* call : {"open", "read", "write"}) {
      const Fault fault{.call = call, .error = number(EIO), .chance = 8, .seed = seed};
      const FaultyRun run = phone_.run(fault);
      SCOPED_TRACE(traceOf(phone_, fault, run));
      expectNothingTorn(phone_, fault, run);
      expectNoLie(phone_, run);
      expectReason(run);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Verbs, FileFaults, testing::ValuesIn(verbsToStrike()), nameOfVerb);

}  // namespace
}  // namespace phone
