// When texts have looks, and which.
#include <gtest/gtest.h>

#include "tests/app/command.h"

namespace phone {
namespace {

class Looks : public testing::Test {
 protected:
  Looks() {
    workplace_.output({"create"});
    workplace_.shell(
        "printf '%s\\n' BEGIN:VCALENDAR X-WR-CALNAME:Work X-APPLE-CALENDAR-COLOR:#FF8000 BEGIN:VEVENT UID:1 "
        "DTSTART:20260307T090000Z SUMMARY:Review END:VEVENT END:VCALENDAR > work.ics; phone import work.ics");
  }

  static bool hasLooks(const std::string& text) { return text.find('\033') != std::string::npos; }

  Workplace workplace_;
};

TEST_F(Looks, areForTerminalsThatKnowThem) {
  const auto onTerminal = [this](std::vector<std::string> words,
                                 std::map<std::string, std::string> environment) {
    words.insert(words.begin(), "phone");
    environment.try_emplace("TERM", "xterm-256color");
    environment.try_emplace("NO_COLOR", "");
    environment.try_emplace("COLORTERM", "");
    return workplace_.terminal(words, "", environment).output;
  };
  const std::vector<std::string> list{"calendars", "list"};
  const std::string shown = onTerminal(list, {});
  EXPECT_NE(shown.find("\033[38;5;208m\u25CF\033[0m \033[1mWork\033[0m"), std::string::npos) << shown;
  EXPECT_NE(onTerminal(list, {{"COLORTERM", "truecolor"}}).find("\033[38;2;255;128;0m"), std::string::npos);
  EXPECT_FALSE(hasLooks(onTerminal(list, {{"NO_COLOR", "1"}})));
  EXPECT_FALSE(hasLooks(onTerminal(list, {{"TERM", "dumb"}})));
  EXPECT_FALSE(hasLooks(onTerminal({"calendars", "list", "--color", "never"}, {})));
  EXPECT_FALSE(hasLooks(onTerminal({"calendars", "list", "--json"}, {})));

  EXPECT_FALSE(hasLooks(workplace_.output(list)));
  EXPECT_TRUE(hasLooks(workplace_.output({"calendars", "list", "--color", "always"})));
}

TEST_F(Looks, changeNothingButLooks) {
  const std::vector<std::vector<std::string>> uses{{"calendars", "list"},
                                                   {"settings", "list"},
                                                   {"event", "show", "Review"},
                                                   {"event", "list", "--now", "2026-03-07T09:00"},
                                                   {"lockscreen", "--now", "2026-03-07T09:00"}};
  for (std::vector<std::string> words : uses) {
    const std::string plain = workplace_.output(words);
    words.insert(words.end(), {"--color", "always"});
    std::string styled = workplace_.output(words);
    EXPECT_TRUE(hasLooks(styled)) << styled;
    for (std::size_t at = 0; (at = styled.find("\u25CF")) != std::string::npos;) {
      styled.erase(at, std::string("\u25CF\033[0m ").size());
    }
    for (std::size_t at = 0; (at = styled.find('\033')) != std::string::npos;) {
      styled.erase(at, styled.find('m', at) - at + 1);
    }
    EXPECT_EQ(styled, plain);
  }
}

}  // namespace
}  // namespace phone
