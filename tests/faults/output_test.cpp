// Every verb, printing into a full disk: what was done stays done, but the command does not say that all is
// well.
#include <gtest/gtest.h>

#include "tests/faults/oracle.h"
#include "tests/faults/verbs.h"

namespace phone {
namespace {

class FullOutput : public testing::TestWithParam<Verb> {};

TEST_P(FullOutput, IsAnErrorForEveryVerbThatPrints) {
  FaultyPhone phone(GetParam());
  const FaultyRun run = phone.runInto("/dev/full");
  const bool prints = !phone.whole().result.output.empty();
  EXPECT_EQ(run.result.exitCode, prints ? 1 : 0) << run.result.errors;
  EXPECT_EQ(run.result.errors.find("could not be written") != std::string::npos, prints) << run.result.errors;
  EXPECT_EQ(run.state, phone.whole().state);
}

INSTANTIATE_TEST_SUITE_P(Verbs, FullOutput, testing::ValuesIn(verbsToStrike()), nameOfVerb);

}  // namespace
}  // namespace phone
