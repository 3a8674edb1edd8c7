// The phones that these tests start: every release, at a fixed time.
#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "phone/foundation/host_options.h"

namespace phone {

/// Friday 7 March 2014, 13:40 in Berlin.
inline constexpr double kFridayNoon = 415'888'800.0;

inline HostOptions phoneOf(const std::string& release = "8.4") {
  return {.root = std::filesystem::temp_directory_path(),
          .release = release,
          .now = kFridayNoon,
          .timeZone = "Europe/Berlin"};
}

/// A test that runs once for each release.
class EveryRelease : public testing::TestWithParam<const char*> {};

inline std::string releaseName(const testing::TestParamInfo<const char*>& release) {
  std::string name = std::string("ios") + release.param;
  name.erase(name.find('.'), 1);
  return name;
}

}  // namespace phone
