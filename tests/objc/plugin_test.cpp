// Loading a plug-in: what goes wrong is said in words.
#include "phone/objc/plugin.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

#include "tests/support/built.h"

namespace phone {
namespace {

template <typename Action>
std::string failureOf(const Action& action) {
  try {
    action();
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "no failure";
}

TEST(Plugin, FailuresNameWhatIsMissing) {
  const auto contains = [](const std::string& text, const char* part) {
    return text.find(part) != std::string::npos;
  };
  EXPECT_TRUE(contains(failureOf([] { pluginAddress("early"); }), "no plug-in is loaded"));
  EXPECT_TRUE(contains(failureOf([] { loadPlugin("missing.so"); }), "missing.so"));
  EXPECT_TRUE(contains(failureOf([] { loadPlugin(sourceFolder() / "CMakeLists.txt"); }), "CMakeLists.txt"));
  loadPlugin(pluginLibrary());
  EXPECT_TRUE(contains(failureOf([] { pluginAddress("noSuchName"); }), "noSuchName"));
}

}  // namespace
}  // namespace phone
