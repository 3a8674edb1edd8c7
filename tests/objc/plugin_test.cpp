// Loading a plug-in: what goes wrong is said in words.
#include "phone/objc/plugin.h"

#include <gtest/gtest.h>
#include <stdexcept>
#include <string>

#include "tests/foundation/temporary_folder.h"
#include "tests/support/built.h"

namespace phone {
namespace {

namespace fs = std::filesystem;

template <typename Action>
std::string failureOf(const Action& action) {
  try {
    action();
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "no failure";
}

bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(Plugin, FailuresNameWhatIsMissing) {
  EXPECT_TRUE(contains(failureOf([] { pluginAddress("early"); }), "no plug-in is loaded"));
  loadPlugin(pluginLibrary());
  EXPECT_TRUE(contains(failureOf([] { pluginAddress("noSuchName"); }), "noSuchName"));
}

TEST(Plugin, AFileThatIsNoLibraryForThisMachineIsNamedForWhatItIs) {
  const TemporaryFolder folder;
  const fs::path file = folder.path() / "plugin";
  const std::string whole = bytesOf(pluginLibrary());
  constexpr std::size_t kMachine = 18;
  std::string foreign = whole;
  foreign[kMachine] = 40;
  const std::pair<std::string, const char*> contents[] = {
      {"", "it is no library; wanted is a Linux library for"},
      {"int main() {}\n", "it is no library"},
      {whole.substr(0, 40), "it is a library that is cut off"},
      {whole.substr(0, whole.size() / 2), "it is a library that is cut off"},
      {foreign, "it is a file for 32-bit ARM"},
      {"\xcf\xfa\xed\xfe and so on", "it is a library for phones, which \"scripts/emulate\" can run"},
  };
  for (const auto& [content, reason] : contents) {
    writeBytes(file, content);
    const std::string failure = failureOf([&] { loadPlugin(file); });
    EXPECT_TRUE(contains(failure, reason) && contains(failure, file.string())) << failure;
  }
  EXPECT_TRUE(contains(failureOf([] { loadPlugin("missing.so"); }), "missing.so: there is no such file"));
  EXPECT_TRUE(contains(failureOf([&] { loadPlugin(folder.path()); }), "it is a folder"));
  EXPECT_TRUE(contains(failureOf([] { loadPlugin("/dev/null"); }), "it is no plain file"));
}

}  // namespace
}  // namespace phone
