// What all verbs have in common: help, exit codes, where errors go, which phone they work on.
#include <gtest/gtest.h>

#include "tests/app/command.h"

namespace phone {
namespace {

using testing::PrintToString;

TEST(PhoneCommand, everyVerbHelpsWithAnExample) {
  const Workplace workplace;
  const std::vector<std::vector<std::string>> verbs{
      {},
      {"create"},
      {"import"},
      {"export"},
      {"lockscreen"},
      {"calendars"},
      {"calendars", "list"},
      {"calendars", "show"},
      {"calendars", "hide"},
      {"calendars", "select"},
      {"calendars", "rename"},
      {"calendars", "remove"},
      {"hide"},
      {"unhide"},
      {"event"},
      {"event", "list"},
      {"event", "show"},
      {"event", "new"},
      {"event", "edit"},
      {"event", "switch"},
      {"event", "delete"},
      {"settings"},
      {"settings", "list"},
      {"settings", "get"},
      {"settings", "set"},
      {"settings", "unset"},
      {"order"},
      {"order", "show"},
      {"order", "events-first"},
      {"order", "notifications-first"},
      {"order", "none"},
      {"order", "set"},
      {"completion"},
      {"help"},
  };
  for (std::vector<std::string> words : verbs) {
    std::string line = "phone";
    for (const std::string& word : words) line += " " + word;
    words.emplace_back("--help");
    const std::string help = workplace.output(words);
    const std::size_t example = help.find("Example:");
    ASSERT_NE(example, std::string::npos) << help;
    EXPECT_NE(help.find(line, example), std::string::npos) << help;
    EXPECT_TRUE(help.ends_with(".\n")) << help;
  }
}

struct BadUse {
  std::vector<std::string> words;
  int exitCode;
  /// What the error says.
  std::string says;
};

TEST(PhoneCommand, saysWhatIsWrongAndEndsWithItsCode) {
  const Workplace workplace;
  workplace.output({"create"});
  const std::vector<BadUse> uses{
      {{}, 2, "phone --help"},
      {{"fly"}, 2, "fly"},
      {{"lockscreen", "--fly"}, 2, "phone lockscreen --help"},
      {{"lockscreen", "--png"}, 2, "--png needs a value"},
      {{"lockscreen", "--now", "2026-03-07", "--now", "2026-03-08"}, 2, "--now is given more than once"},
      {{"lockscreen", "--json=maybe"}, 2, "--json takes no value \"maybe\""},
      {{"hide"}, 2, "EVENT is missing"},
      {{"create", "spare"}, 2, "no use for spare"},
      {{"lockscreen", "--ios", "6.0"}, 2, "9.3"},
      {{"lockscreen", "--now", "tomorrow"}, 2, "2026-03-07T09:00"},
      {{"lockscreen", "--timezone", "Europe/Nowhere"}, 2, "Europe/Berlin"},
      {{"lockscreen", "--size", "big"}, 2, "WIDTHxHEIGHT"},
      {{"lockscreen", "--notification", "|text"}, 2, "title"},
      {{"lockscreen", "--tap", "1"}, 1, "no item 1"},
      {{"lockscreen", "--wake", "Nobody"}, 1, "Nobody"},
      {{"lockscreen", "--wallpaper", "missing.png"}, 1, "missing.png"},
      {{"lockscreen", "--png", "no/such/folder/a.png"}, 1, "no/such/folder/a.png"},
      {{"lockscreen", "--plugin", "missing.so"}, 1, "missing.so"},
      {{"lockscreen", "--root", "elsewhere"}, 1, "phone create --root elsewhere"},
      {{"settings", "list", "--root", "elsewhere"}, 1, "phone create --root elsewhere"},
      {{"create"}, 1, "already"},
      {{"import", "missing.ics"}, 1, "missing.ics"},
      {{"calendars", "hide", "Nobody"}, 1, "Nobody"},
      {{"calendars", "select"}, 2, "--none"},
      {{"hide", "Nobody"}, 1, "Nobody"},
      {{"event", "new", "--title", "x", "--start", "soon"}, 2, "soon"},
      {{"event", "new", "--title", "x"}, 2, "--start"},
      {{"event", "switch", "x", "maybe"}, 2, "maybe"},
      {{"settings", "get", "nothing"}, 2, "nothing"},
      {{"settings", "get", "TEXTSIZE"}, 2, "textSize"},
      {{"settings", "unset"}, 2, "--all"},
      {{"order", "sideways"}, 2, "sideways"},
      {{"evnt", "list"}, 2, "did you mean event?"},
      {{"event", "lsit"}, 2, "did you mean list?"},
      {{"--versoin"}, 2, "there is no option --versoin here; did you mean --version?"},
      {{"version"}, 2, "did you mean --version?"},
      {{"event", "list", "--jsno"}, 2, "there is no option --jsno here; did you mean --json?"},
      {{"event", "list", "--rooot=x"}, 2, "did you mean --root?"},
      {{"event", "list", "--fly"}, 2, "there is no option --fly here\n"},
      {{"settings", "get", "textSzie"}, 2, "did you mean textSize?"},
      {{"help", "event", "nwe"}, 2, "there is no verb \"phone event nwe\"; did you mean new?"},
      {{"help", "--man", "event"}, 2, "name none"},
      {{"completion", "fish"}, 2, "zsh"},
      {{"export"}, 1, "no calendars to export"},
      {{"calendars", "rename", "Work", ""}, 2, "empty"},
      {{"calendars", "remove", "Work"}, 1, "Work"},
  };
  for (const BadUse& use : uses) {
    const CommandResult result = workplace.phone(use.words);
    EXPECT_EQ(result.exitCode, use.exitCode) << PrintToString(use.words) << "\n" << result.errors;
    EXPECT_NE(result.errors.find(use.says), std::string::npos) << PrintToString(use.words) << "\n"
                                                               << result.errors;
    EXPECT_EQ(result.output, "") << PrintToString(use.words);
  }
}

TEST(PhoneCommand, findsThePhoneByOptionThenEnvironmentThenFolder) {
  const Workplace workplace;
  for (const char* root : {"phone-root", "by-variable", "by-option"}) {
    workplace.output({"create", "--root", root});
    workplace.output({"settings", "set", "customLaunchAppBundleID", root, "--root", root});
  }
  const std::vector<std::string> get{"settings", "get", "customLaunchAppBundleID"};
  EXPECT_EQ(workplace.phone(get).output, "phone-root\n");
  EXPECT_EQ(workplace.phone(get, {{"TAVIMO_PHONE", "by-variable"}}).output, "by-variable\n");
  EXPECT_EQ(workplace
                .phone({"--root", "by-option", "settings", "get", "customLaunchAppBundleID"},
                       {{"TAVIMO_PHONE", "by-variable"}})
                .output,
            "by-option\n");
}

TEST(PhoneCommand, makesNoPhoneAmongOtherFiles) {
  const Workplace workplace;
  workplace.shell("mkdir full empty && touch full/letter file");
  EXPECT_EQ(workplace.phone({"create", "--root", "full"}).exitCode, 1);
  EXPECT_EQ(workplace.phone({"create", "--root", "file"}).exitCode, 1);
  EXPECT_EQ(workplace.shell("ls full").output, "letter\n");
  workplace.output({"create", "--root", "empty"});
  EXPECT_EQ(workplace.phone({"lockscreen", "--root", "empty"}).exitCode, 0);
}

TEST(PhoneCommand, reportsOutputThatCannotBeWritten) {
  const Workplace workplace;
  workplace.output({"create"});
  const CommandResult result = workplace.shell("phone settings list >/dev/full");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.errors.find("could not be written"), std::string::npos) << result.errors;
}

}  // namespace
}  // namespace phone
