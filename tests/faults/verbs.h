// The verbs of the `phone` command that faults strike.
#pragma once

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/faults/faulty_phone.h"

namespace phone {

/// In the suite one verb for each way in which files are read and written; in the long sweep all.
std::vector<Verb> verbsToStrike();

/// The name of the verb's test.
std::string nameOfVerb(const testing::TestParamInfo<Verb>& verb);

}  // namespace phone
