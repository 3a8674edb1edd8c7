// phone settings and phone order: what they write is what the plug-in reads, and nothing is lost on the way.
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <nlohmann/json.hpp>

#include "tests/app/command.h"
#include "tests/support/built.h"

namespace phone {
namespace {

using Json = nlohmann::json;

constexpr const char* kSettings = "var/mobile/Library/Preferences/org.quenmark.tavimoprefs.plist";
constexpr const char* kOrdering = "var/mobile/Library/Preferences/org.quenmark.tavimo.sorting.plist";

class SettingsVerb : public testing::Test {
 protected:
  SettingsVerb() { workplace_.output({"create"}); }

  void writeFile(const char* name, const std::string& content) {
    std::ofstream(workplace_.onPhone(name)) << content;
  }
  std::string fileContent(const char* name) {
    std::ifstream stream(workplace_.onPhone(name));
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  std::string get(const std::string& key) { return workplace_.output({"settings", "get", key}); }

  Workplace workplace_;
};

TEST_F(SettingsVerb, storesEveryKindInTheFormThatThePlugInReads) {
  const std::vector<std::vector<std::string>> changes{
      {"debugMode", "on", "<true/>"},
      {"enabled", "no", "<false/>"},
      {"textColor", "calendar", "<integer>999</integer>"},
      {"dateTextColor", "7", "<integer>7</integer>"},
      {"textSize", "18", "<integer>18</integer>"},
      {"swipeAction", "fantastical", "<integer>2</integer>"},
      {"customLaunchAppBundleID", "com.example.app", "<string>com.example.app</string>"},
      {"iconFile", "DOT_LARGE", "<string>DOT_LARGE</string>"},
  };
  for (const auto& change : changes) workplace_.output({"settings", "set", change[0], change[1]});
  const std::string file = fileContent(kSettings);
  for (const auto& change : changes) {
    const std::size_t key = file.find("<key>" + change[0] + "</key>");
    ASSERT_NE(key, std::string::npos) << file;
    EXPECT_EQ(file.find(change[2], key), file.find('<', file.find("</key>", key) + 6)) << change[0] << "\n"
                                                                                       << file;
  }
  EXPECT_EQ(get("dateTextColor"), "orange\n");
  workplace_.output({"settings", "unset", "dateTextColor", "textSize"});
  EXPECT_EQ(get("dateTextColor"), "gray\n");
  EXPECT_EQ(get("swipeAction"), "fantastical\n");
  workplace_.output({"settings", "unset", "--all"});
  EXPECT_EQ(get("swipeAction"), "calendar\n");
}

TEST_F(SettingsVerb, refusesWhatThePlugInWouldTakeForSomethingElse) {
  const std::vector<std::vector<std::string>> refused{
      {"enabled", "perhaps", "on nor off"},
      {"textSize", "0", "1 to 100 points"},
      {"textSize", "14.5", "whole number"},
      {"textSize", "99999999999999999999", "whole number"},
      {"daysToDisplay", "", "whole number"},
      {"wallpaperBlurMode", "5", "take it for \"never\""},
      {"swipeAction", "4", "take it for \"calendar\""},
      {"textColor", "mauve", "9 brown"},
      {"subtitleTextColor", "999", "take it for \"white\""},
      {"customLaunchAppBundleID", "my app", "com.example.app"},
      {"iconFile", "icon.png", "begins with /"},
  };
  for (const auto& use : refused) {
    const CommandResult result = workplace_.phone({"settings", "set", use[0], use[1]});
    EXPECT_EQ(result.exitCode, 2) << use[0] << " " << use[1];
    EXPECT_NE(result.errors.find(use[0]), std::string::npos) << result.errors;
    EXPECT_NE(result.errors.find(use[2]), std::string::npos) << result.errors;
  }
  EXPECT_FALSE(std::filesystem::exists(workplace_.onPhone(kSettings)));
}

TEST_F(SettingsVerb, readsStrayValuesAsThePlugInDoes) {
  writeFile(kSettings,
            R"(<?xml version="1.0"?><plist version="1.0"><dict>
  <key>textSize</key><string>18</string> <key>subtitleTextSize</key><dict/>
  <key>swipeAction</key><integer>-1</integer> <key>textColor</key><integer>55</integer>
  <key>enabled</key><string>NO</string> <key>iconFile</key><integer>3</integer>
  <key>another program's</key><string>kept</string></dict></plist>)");
  EXPECT_EQ(get("textSize"), "18\n");
  EXPECT_EQ(get("subtitleTextSize"), "14\n");
  EXPECT_EQ(get("swipeAction"), "calendar\n");
  EXPECT_EQ(get("textColor"), "white\n");
  EXPECT_EQ(get("enabled"), "off\n");
  EXPECT_EQ(get("iconFile"), "/Applications/MobileCal.app/icon-about@2x.png\n");
  EXPECT_NE(workplace_.output({"settings", "list"}).find("the file has: 55"), std::string::npos);
  workplace_.output({"settings", "set", "textSize", "20"});
  EXPECT_NE(fileContent(kSettings).find("kept"), std::string::npos);
}

TEST_F(SettingsVerb, leavesAFileAloneThatIsNoSettingsFile) {
  for (const char* content : {"<plist version=\"1.0\"><array/></plist>", "not a property list"}) {
    writeFile(kSettings, content);
    const CommandResult result = workplace_.phone({"settings", "set", "textSize", "20"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_NE(result.errors.find(kSettings), std::string::npos) << result.errors;
    EXPECT_EQ(fileContent(kSettings), content);
  }
}

TEST_F(SettingsVerb, explainsAllSettingsInJsonAndInTheDocument) {
  std::ifstream stream(sourceFolder() / "docs/settings.md");
  const std::string document{std::istreambuf_iterator<char>(stream), {}};
  const Json settings = Json::parse(workplace_.output({"settings", "list", "--json"}));
  ASSERT_EQ(settings.size(), 21U);
  for (const Json& setting : settings) {
    const std::string fallback = setting["default"];
    const std::string row = "| `" + setting["key"].get<std::string>() + "` | " +
                            setting["meaning"].get<std::string>() + " | " +
                            setting["type"].get<std::string>() + " | " + setting["range"].get<std::string>() +
                            " | " + (fallback.empty() ? "nothing" : fallback) + " |";
    EXPECT_NE(document.find(row), std::string::npos) << "docs/settings.md lacks the row\n" << row;
    EXPECT_EQ(setting["value"], setting["default"]);
    EXPECT_FALSE(setting["isSet"].get<bool>());
  }
}

TEST_F(SettingsVerb, putsTheEventsBeforeOrAfterThePhonesOwn) {
  workplace_.output({"event", "new", "--title", "Dentist", "--start", "2026-03-07T17:00"});
  const auto titles = [this] {
    const Json screen = Json::parse(workplace_.output(
        {"lockscreen", "--now", "2026-03-07T09:00", "--notification", "Anna|Lunch?", "--json"}));
    std::string all;
    for (const Json& item : screen["items"]) all += item["title"].get<std::string>() + " ";
    return all;
  };
  workplace_.output({"order", "events-first"});
  EXPECT_EQ(titles(), "Dentist Anna ");
  workplace_.output({"order", "notifications-first"});
  EXPECT_EQ(titles(), "Anna Dentist ");
  workplace_.output({"order", "set", "Other", "Orvessa", "System Items"});
  EXPECT_EQ(titles(), "Dentist Anna ");
  EXPECT_NE(workplace_.output({"order", "show"}).find("The events come before"), std::string::npos);
  workplace_.output({"order", "none"});
  EXPECT_FALSE(std::filesystem::exists(workplace_.onPhone(kOrdering)));
}

}  // namespace
}  // namespace phone
