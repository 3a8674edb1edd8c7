// Tests that run once on each release of the phone.
#pragma once

#include <gtest/gtest.h>
#include <string>

#include "tests/tavimo/support/lock_screen.h"

namespace phone {

class EachRelease : public testing::TestWithParam<std::string> {
 protected:
  static const std::string& release() { return GetParam(); }
  static bool addsInTheOldWay() { return release() == "7.1"; }
  static bool listOutlivesLoads() { return release() == "9.3"; }
};

/// "9.3" as part of a test's name: "Ios93".
inline std::string releaseName(const testing::TestParamInfo<std::string>& tested) {
  std::string name = "Ios" + tested.param;
  std::erase(name, '.');
  return name;
}

}  // namespace phone

/// Runs the cases of that fixture, an EachRelease, on every release.
#define TAVIMO_ON_EACH_RELEASE(fixture) \
  INSTANTIATE_TEST_SUITE_P(On, fixture, testing::Values("7.1", "8.1", "8.4", "9.3"), releaseName)
