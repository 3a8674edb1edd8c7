// What bash and zsh make of the Tab key: real shells on a terminal run lines that they have completed.
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <nlohmann/json.hpp>

#include "tests/app/command.h"

namespace phone {
namespace {

using Json = nlohmann::json;

struct Shell {
  std::vector<std::string> words;
  /// What it is told before the first line.
  std::string setup;
};

class Completion : public testing::TestWithParam<Shell> {
 protected:
  Completion() {
    workplace_.output({"create"});
    workplace_.shell(
        "printf '%s\\n' BEGIN:VCALENDAR 'X-WR-CALNAME:My work' BEGIN:VEVENT UID:1 DTSTART:20260307T090000Z "
        "'SUMMARY:Team: the \"big\" one' END:VEVENT END:VCALENDAR > 'my calendar.ics'");
    workplace_.output({"import", "my calendar.ics"});
  }

  /// Types the lines with the shell, which has to run each whole.
  void type(const std::string& lines) {
    const CommandResult result =
        workplace_.terminal(GetParam().words, GetParam().setup + lines + "exit\n", {{"TERM", "dumb"}});
    shown_ = result.output;
  }
  std::string written(const char* file) {
    std::ifstream stream(workplace_.folder() / file);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  Workplace workplace_;
  std::string shown_;
};

TEST_P(Completion, completesVerbsOptionsAndChoices) {
  type(
      "phone sett\tg\ttextSi\t> setting\n"
      "phone eve\tli\t--now 2026-03-07T09:00 --js\t> events.json\n"
      "phone lockscr\t--js\t--now 2026-03-07T09:00 --ios 9\t> screen.json\n"
      "phone settings set textColor ora\t\n"
      "phone help event sw\t> help\n");
  EXPECT_EQ(written("setting"), "14\n") << shown_;
  EXPECT_EQ(Json::parse(written("events.json"), nullptr, false).size(), 1U) << shown_;
  EXPECT_EQ(Json::parse(written("screen.json"), nullptr, false).value("release", ""), "9.3") << shown_;
  EXPECT_EQ(workplace_.output({"settings", "get", "textColor"}), "orange\n") << shown_;
  EXPECT_TRUE(written("help").starts_with("Flip")) << shown_;
}

TEST_P(Completion, completesNamesFromThePhoneAndFiles) {
  type(
      "phone import my\t> import\n"
      "phone calendars hide My\t\n"
      "phone event show Tea\t--json > event.json\n"
      "phone event list --root pho\t--now 2026-03-07T09:00 --json > list.json\n");
  EXPECT_EQ(written("import"), "My work: 1 unchanged\n") << shown_;
  EXPECT_NE(workplace_.output({"calendars", "list"}).find("hidden in the Calendar app"), std::string::npos)
      << shown_;
  EXPECT_EQ(Json::parse(written("event.json"), nullptr, false).value("calendar", ""), "My work") << shown_;
  EXPECT_EQ(Json::parse(written("list.json"), nullptr, false).size(), 1U) << shown_;
}

INSTANTIATE_TEST_SUITE_P(
    Shells, Completion,
    testing::Values(Shell{{"bash", "--norc", "--noprofile", "-i"},
                          "bind 'set enable-bracketed-paste off'; eval \"$(phone completion bash)\"\n"},
                    Shell{{"zsh", "-f", "-i"},
                          "autoload -U compinit; compinit -u -D; source <(phone completion zsh)\n"}),
    [](const auto& shell) { return shell.param.words.front(); });

TEST(CompletionWithoutAPhone, isSilent) {
  const Workplace workplace;
  const CommandResult names = workplace.phone({"complete", "--", "calendars", "hide", ""});
  EXPECT_EQ(names.exitCode, 0);
  EXPECT_EQ(names.output + names.errors, "names\n");
  EXPECT_EQ(workplace.output({"complete", "--", "import", "--nonsense", "x", "--root=y", "--"}).substr(0, 6),
            "words\n");
}

}  // namespace
}  // namespace phone
