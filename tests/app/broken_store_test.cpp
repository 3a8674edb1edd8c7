// The verbs on a phone whose files are broken: the problem is said, nothing is made up and nothing written
// over.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>
#include <unistd.h>

#include "tests/app/command.h"
#include "tests/support/built.h"

namespace phone {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;

constexpr const char* kDatabase = "var/mobile/Library/Calendar/Calendar.sqlitedb";

class BrokenStore : public testing::Test {
 protected:
  BrokenStore() {
    workplace_.output({"create"});
    workplace_.output({"import", (sourceFolder() / "samples").string()});
  }

  fs::path database() const { return workplace_.onPhone(kDatabase); }
  std::string bytes() const {
    std::ifstream stream(database(), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  void write(const std::string& content) const {
    fs::remove_all(database());
    std::ofstream(database(), std::ios::binary) << content;
  }

  /// Every verb that needs the calendar says the problem, and only that.
  void expectProblem(const std::string& says, const std::string& before = "") const {
    for (const char* verb :
         {"lockscreen", "lockscreen --json --png picture.png", "event list", "event list --json",
          "event show Dentist", "event new --title x --start 2026-03-07", "event delete Dentist",
          "calendars list", "calendars hide Work", "hide Dentist", "import again.ics"}) {
      const CommandResult result = workplace_.shell(before + "phone " + verb);
      EXPECT_EQ(result.exitCode, 1) << verb;
      EXPECT_EQ(result.output, "") << verb;
      EXPECT_NE(result.errors.find(kDatabase), std::string::npos) << verb << "\n" << result.errors;
      EXPECT_NE(result.errors.find(says), std::string::npos) << verb << "\n" << result.errors;
    }
    EXPECT_FALSE(fs::exists(workplace_.folder() / "picture.png"));
  }

  Workplace workplace_;
};

TEST_F(BrokenStore, IsSaidByEveryVerbAndLeftAsItIs) {
  fs::copy_file(sourceFolder() / "samples/work.ics", workplace_.folder() / "again.ics");
  const std::string good = bytes();
  const std::string header = good.substr(0, 4096);
  const struct {
    std::string content;
    const char* says;
  } broken[] = {
      {"", "is empty"},
      {good.substr(0, 5000), "is damaged"},
      {good.substr(0, good.size() - 4096), "is damaged"},
      {header + std::string(good.size() - header.size(), '\x5A'), "is damaged"},
      {"These are the words of a text of more than a hundred characters, which is no database, however long "
       "one looks at it.",
       "is no calendar database"}};
  for (const auto& [content, says] : broken) {
    write(content);
    expectProblem(says);
    EXPECT_EQ(bytes(), content);
  }
  write(good);
  EXPECT_EQ(workplace_.phone({"lockscreen"}).exitCode, 0) << "it was the content that stood in the way";
}

TEST_F(BrokenStore, IsSaidWhenItIsNoFileOrNotToBeRead) {
  fs::copy_file(sourceFolder() / "samples/work.ics", workplace_.folder() / "again.ics");
  const std::string good = bytes();
  fs::remove(database());
  fs::create_directory(database());
  expectProblem("a folder");
  workplace_.shell("rmdir " + database().string() + " && mkfifo " + database().string());
  expectProblem("no plain file");
  write(good);
  fs::permissions(database(), fs::perms::none);
  // The administrator may read everything, so the command runs as somebody else.
  workplace_.shell("chmod -R go+rwX . && chmod 000 " + database().string());
  expectProblem("Permission denied", geteuid() == 0 ? "setpriv --reuid 65534 --clear-groups " : "");
}

TEST_F(BrokenStore, ARefusedChangeSaysWhy) {
  fs::create_directory(database().string() + "-journal");
  const CommandResult refused = workplace_.phone({"event", "new", "--title", "x", "--start", "2026-03-07"});
  EXPECT_EQ(refused.exitCode, 1);
  EXPECT_NE(refused.errors.find(kDatabase), std::string::npos) << refused.errors;
  EXPECT_EQ(refused.errors.find("EKErrorDomain"), std::string::npos) << refused.errors;
}

TEST_F(BrokenStore, AFullDiskMakesNoPhone) {
  // In a place of its own, so that what is mounted goes with the process.
  const std::string onSmallDisk = "unshare --mount bash -c 'mkdir -p disk && mount -t tmpfs -o size=";
  if (workplace_.shell(onSmallDisk + "1M none disk'").exitCode != 0) {
    GTEST_SKIP() << "This machine does not let the test mount a small disk.";
  }
  const struct {
    const char* size;
    const char* output;
  } disks[] = {{"4k", "1\n1\n"}, {"12k", "made a phone in a/b\n0\na\n1\n"}};
  for (const auto& [size, output] : disks) {
    const CommandResult result = workplace_.shell(
        onSmallDisk + size +
        " none disk; cd disk; phone create --root a/b; echo $?; ls -A; mkdir c; phone create "
        "--root c; echo $?; ls -A c'");
    EXPECT_EQ(result.output, output) << size << "\n" << result.errors;
    EXPECT_NE(result.errors.find("No space left"), std::string::npos) << result.errors;
  }
  EXPECT_EQ(workplace_.shell(onSmallDisk + "1M none disk; phone create --root disk'").exitCode, 0)
      << "a disk with room is fine, also as the phone's own folder";
}

/// What `calendars list` says of each calendar, and whether the lock screen has any event.
class SearchedCalendars : public BrokenStore {
 protected:
  std::string searched() const {
    std::string titles;
    for (const Json& calendar : Json::parse(workplace_.output({"calendars", "list", "--json"}))) {
      if (calendar["isSearched"].get<bool>()) titles += calendar["title"].get<std::string>() + " ";
    }
    const Json screen = Json::parse(workplace_.output({"lockscreen", "--now", "2026-03-12T09:41", "--json"}));
    EXPECT_EQ(titles.empty(), screen["items"].empty()) << titles;
    const bool saysNothing =
        workplace_.output({"calendars", "list"}).find("searches no calendar") != std::string::npos;
    EXPECT_TRUE(!saysNothing || titles.empty()) << titles;
    return titles + (saysNothing ? "(nothing)" : "");
  }
  fs::path preferences(const std::string& name) const {
    return workplace_.onPhone("var/mobile/Library/Preferences/" + name);
  }
};

TEST_F(SearchedCalendars, AreThoseThatTheLockScreenSearches) {
  EXPECT_EQ(searched(), "Holidays Home Work ");
  workplace_.output({"settings", "set", "enabled", "off"});
  EXPECT_EQ(searched(), "(nothing)");
  workplace_.output({"settings", "unset", "--all"});
  const fs::path calendarApp = preferences("com.apple.mobilecal.plist");
  std::ofstream(calendarApp) << "not a property list";
  EXPECT_EQ(searched(), "(nothing)");
  fs::remove(calendarApp);
  EXPECT_EQ(searched(), "(nothing)");

  workplace_.output({"settings", "set", "onlySelectedCalendars", "off"});
  EXPECT_EQ(searched(), "(nothing)") << "nothing is selected yet";
  workplace_.output({"calendars", "select", "WORK"});
  EXPECT_EQ(searched(), "Work ") << "the Calendar app's preferences do not matter now";
  const fs::path selection = preferences("org.quenmark.tavimo.calendars.plist");
  std::ofstream(selection)
      << "<plist version=\"1.0\"><array><string>nobody</string><integer>3</integer></array></plist>";
  EXPECT_EQ(searched(), "") << "what is selected is not there";
  std::ofstream(preferences("org.quenmark.tavimoprefs.plist")) << "not a property list";
  EXPECT_EQ(searched(), "(nothing)") << "with the default settings the Calendar app counts";
}

TEST_F(SearchedCalendars, AreNamedTheSameWayByEveryVerb) {
  const std::string lines[] = {"calendars hide ", "calendars select ",
                               "event new --title x --start 2026-03-07 --calendar "};
  for (const std::string& line : lines) {
    EXPECT_EQ(workplace_.shell("phone " + line + "wORK").exitCode, 0) << line;
    const CommandResult unknown = workplace_.shell("phone " + line + "wor");
    EXPECT_EQ(unknown.exitCode, 1) << line;
    EXPECT_NE(unknown.errors.find(": there is no calendar \"wor\"; there are Holidays, Home, Work\n"),
              std::string::npos)
        << unknown.errors;
  }
  workplace_.shell("mkdir lower && echo work >lower/displayname && cp " +
                   (sourceFolder() / "samples/home.ics").string() + " lower && phone import lower");
  EXPECT_EQ(workplace_.phone({"calendars", "hide", "work"}).exitCode, 0) << "the exact name is meant";
  const CommandResult several = workplace_.phone({"calendars", "hide", "WORK"});
  EXPECT_EQ(several.exitCode, 1);
  EXPECT_NE(several.errors.find("identifier:\n  "), std::string::npos) << several.errors;
}

}  // namespace
}  // namespace phone
