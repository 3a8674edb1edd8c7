// phone event: the calendar process, from adding an event to deleting it.
#include <filesystem>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/app/command.h"

namespace phone {
namespace {

using Json = nlohmann::json;

class EventVerb : public testing::Test {
 protected:
  EventVerb() { workplace_.output({"create"}); }

  Json list() {
    return Json::parse(workplace_.output({"event", "list", "--json", "--now", "2026-03-07T09:00"}));
  }
  std::size_t itemsOnLockscreen() {
    return Json::parse(workplace_.output({"lockscreen", "--json", "--now", "2026-03-07T09:00"}))["items"]
        .size();
  }
  /// Adds an event and gives its identifier.
  std::string add(const std::string& title, const std::vector<std::string>& more = {}) {
    std::vector<std::string> words{"event", "new", "--title", title, "--start", "2026-03-07T17:00"};
    words.insert(words.end(), more.begin(), more.end());
    std::string printed = workplace_.output(words);
    printed.pop_back();
    return printed.substr(printed.rfind('\n') + 1);
  }

  Workplace workplace_;
};

TEST_F(EventVerb, followsAnEventFromItsMakingToItsEnd) {
  const std::string identifier = add("Dentist", {"--location", "Markt 3", "--show-on-lockscreen", "off"});
  ASSERT_EQ(list().size(), 1U);
  EXPECT_EQ(list()[0]["identifier"], identifier);
  EXPECT_EQ(list()[0]["location"], "Markt 3");
  EXPECT_EQ(list()[0]["end"], "2026-03-07T18:00:00+01:00");
  EXPECT_TRUE(list()[0]["isHidden"].get<bool>());
  EXPECT_EQ(itemsOnLockscreen(), 0U);

  workplace_.output({"event", "switch", "Dentist", "on"});
  EXPECT_EQ(itemsOnLockscreen(), 1U);
  EXPECT_NE(workplace_.output({"event", "show", identifier}).find("Show on Lockscreen [on]"),
            std::string::npos);

  workplace_.output(
      {"event", "edit", identifier, "--title", "Plumber", "--start", "2026-03-08T10:00", "--cancel"});
  EXPECT_EQ(list()[0]["title"], "Dentist");
  workplace_.output({"event", "edit", identifier, "--title", "Plumber", "--start", "2026-03-08T10:00"});
  EXPECT_EQ(list()[0]["title"], "Plumber");
  EXPECT_EQ(list()[0]["end"], "2026-03-08T11:00:00+01:00");

  workplace_.output({"event", "delete", "Plumber"});
  EXPECT_EQ(list().size(), 0U);
}

TEST_F(EventVerb, asksWhichOfSeveralEventsIsMeant) {
  const std::string first = add("Dentist");
  const std::string second = add("dentist");
  const CommandResult result = workplace_.phone({"hide", "Dentist"});
  EXPECT_EQ(result.exitCode, 1);
  for (const std::string& identifier : {first, second}) {
    EXPECT_NE(result.errors.find(identifier), std::string::npos) << result.errors;
  }
  workplace_.output({"hide", first});
  EXPECT_EQ(itemsOnLockscreen(), 1U);
}

TEST_F(EventVerb, saysWhenAChoiceCouldNotBeKept) {
  add("Dentist");
  // A folder in the store's place: what cannot be read is not replaced, whoever writes.
  const auto store = workplace_.onPhone("var/mobile/Library/Preferences/org.quenmark.tavimo.events.plist");
  std::filesystem::remove(store);
  std::filesystem::create_directory(store);
  const CommandResult result = workplace_.phone({"hide", "Dentist"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.errors.find("not have been kept: cannot write " + store.string()), std::string::npos)
      << result.errors;
}

TEST_F(EventVerb, printsTheSameObjectWhereverItPrintsJson) {
  const Json added = Json::parse(
      workplace_.output({"event", "new", "--title", "Dentist", "--start", "2026-03-07T17:00", "--json"}));
  EXPECT_EQ(added, list().at(0));
  EXPECT_EQ(Json::parse(workplace_.output({"event", "show", "Dentist", "--json"})), added);
  const Json hidden = Json::parse(workplace_.output(
      {"event", "edit", "Dentist", "--title", "Plumber", "--show-on-lockscreen", "off", "--json"}));
  EXPECT_EQ(hidden, list().at(0));
  EXPECT_EQ(hidden["title"], "Plumber");
  EXPECT_TRUE(hidden["isHidden"].get<bool>());
}

TEST_F(EventVerb, showsTheOccurrenceThatComesNext) {
  workplace_.shell(
      "printf '%s\\n' BEGIN:VCALENDAR BEGIN:VEVENT UID:1 DTSTART:20260302T090000Z DURATION:PT1H "
      "'RRULE:FREQ=WEEKLY;COUNT=3' SUMMARY:Meeting END:VEVENT BEGIN:VEVENT UID:1 "
      "RECURRENCE-ID:20260309T090000Z DTSTART:20260310T090000Z DURATION:PT1H 'SUMMARY:Later meeting' "
      "END:VEVENT END:VCALENDAR > weekly.ics; phone import weekly.ics");
  const auto show = [this](const std::string& now) {
    const std::string text = workplace_.output({"event", "show", "Meeting", "--now", now});
    const Json json = Json::parse(workplace_.output({"event", "show", "Meeting", "--now", now, "--json"}));
    EXPECT_NE(text.find(json["title"].get<std::string>() + "\n"), std::string::npos) << text;
    // The view says the day in its own words.
    std::string start = json["start"];
    EXPECT_NE(text.find(" " + std::to_string(std::stoi(start.substr(8, 2)))), std::string::npos) << text;
    return start;
  };
  EXPECT_EQ(show("2025-01-01"), "2026-03-02T10:00:00+01:00");
  EXPECT_EQ(show("2026-03-02T10:59"), "2026-03-02T10:00:00+01:00");
  EXPECT_EQ(show("2026-03-02T11:00"), "2026-03-10T10:00:00+01:00");
  EXPECT_EQ(show("2026-03-11"), "2026-03-16T10:00:00+01:00");
  EXPECT_EQ(show("2030-01-01"), "2026-03-16T10:00:00+01:00");
}

TEST_F(EventVerb, drawsViewAndEditor) {
  add("Dentist", {"--png", "new.png"});
  workplace_.output({"event", "show", "Dentist", "--png", "view.png"});
  workplace_.output({"event", "edit", "Dentist", "--cancel", "--png", "edit.png"});
  for (const char* picture : {"new.png", "view.png", "edit.png"}) {
    EXPECT_GT(std::filesystem::file_size(workplace_.folder() / picture), 1000U) << picture;
  }
}

}  // namespace
}  // namespace phone
