// What the README tells its readers to type works, word for word.
#include <fstream>
#include <gtest/gtest.h>
#include <regex>
#include <sstream>

#include "tests/app/command.h"
#include "tests/support/built.h"

namespace phone {
namespace {

namespace fs = std::filesystem;

/// The lines of all blocks of commands.
std::vector<std::string> commandLines(const fs::path& document) {
  std::ifstream stream(document);
  std::vector<std::string> lines;
  bool inside = false;
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with("```")) {
      inside = line == "```sh";
    } else if (inside) {
      lines.push_back(line);
    }
  }
  return lines;
}

TEST(Readme, itsCommandsRunInTheOrderInWhichTheyStand) {
  const Workplace workplace;
  const fs::path source = sourceFolder();
  fs::create_directory_symlink(source / "samples", workplace.folder() / "samples");
  std::string script;
  std::size_t commands = 0;
  for (const std::string& line : commandLines(source / "README.md")) {
    if (line.starts_with("scripts/")) {
      // They build and run what this test is a part of: their help shows that they are there and sound.
      const std::string name = line.substr(0, line.find(' '));
      EXPECT_EQ(workplace.shell((source / name).string() + " --help").exitCode, 0) << line;
      continue;
    }
    script += "echo '+ " + std::regex_replace(line, std::regex("'"), "") + "' >&2\n" + line + "\n";
    commands += line.starts_with("phone ") ? 1 : 0;
  }
  EXPECT_GE(commands, 10U);
  const CommandResult result = workplace.shell(script);
  EXPECT_EQ(result.exitCode, 0) << result.errors;
  EXPECT_TRUE(fs::exists(workplace.folder() / "lock-screen.png"));
  // The last command shows an event that earlier ones added, hid and brought back.
  EXPECT_NE(result.output.find("\"title\": \"Dentist\""), std::string::npos) << result.output;
}

TEST(Readme, itsLinksLeadSomewhere) {
  const fs::path source = sourceFolder();
  std::vector<fs::path> documents{source / "README.md", source / "CONTRIBUTING.md", source / "CHANGELOG.md"};
  for (const auto& entry : fs::directory_iterator(source / "docs")) {
    if (entry.path().extension() == ".md") documents.push_back(entry.path());
  }
  const std::regex link(R"re((?:\]\(|src=")([^)"#:]+)[)"#])re");
  std::size_t links = 0;
  for (const fs::path& document : documents) {
    std::stringstream text;
    text << std::ifstream(document).rdbuf();
    const std::string content = text.str();
    for (std::sregex_iterator match(content.begin(), content.end(), link), end; match != end; ++match) {
      EXPECT_TRUE(fs::exists(document.parent_path() / (*match)[1].str()))
          << document.filename() << ": " << (*match)[1];
      ++links;
    }
  }
  EXPECT_GT(links, 15U);
}

}  // namespace
}  // namespace phone
