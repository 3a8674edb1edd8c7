// phone calendars rename and remove, with what the phone remembers of a calendar.
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/app/command.h"

namespace phone {
namespace {

using Json = nlohmann::json;

class CalendarsVerb : public testing::Test {
 protected:
  CalendarsVerb() {
    workplace_.output({"create"});
    workplace_.shell(
        "printf '%s\\n' BEGIN:VCALENDAR BEGIN:VEVENT UID:1 DTSTART:20260307T090000Z SUMMARY:Review "
        "END:VEVENT "
        "BEGIN:VEVENT UID:2 DTSTART:20260308T090000Z 'RRULE:FREQ=DAILY;COUNT=3' SUMMARY:Stand-up END:VEVENT "
        "END:VCALENDAR > Work.ics; sed 's/Review/Dinner/; s/Stand-up/Walk/' Work.ics > Home.ics");
    workplace_.output({"import", "Work.ics", "Home.ics"});
    for (const char* const title : {"Stand-up", "Walk"}) workplace_.output({"hide", title});
    workplace_.output({"calendars", "hide", "Work", "Home"});
    workplace_.output({"calendars", "select", "Work", "Home"});
  }

  /// What `phone calendars list` has of it; null when there is none of that name.
  Json calendar(const std::string& title) {
    for (const Json& each : Json::parse(workplace_.output({"calendars", "list", "--json"}))) {
      if (each["title"] == title) return each;
    }
    return nullptr;
  }
  /// The titles of its events, hidden ones in parentheses.
  std::string events(const std::string& calendar) {
    std::string titles;
    const Json list =
        Json::parse(workplace_.output({"event", "list", "--json", "--now", "2026-03-07T00:00"}));
    for (const Json& event : list) {
      if (event["calendar"] != calendar) continue;
      const std::string title = event["title"];
      titles += event["isHidden"].get<bool>() ? "(" + title + ") " : title + " ";
    }
    return titles;
  }

  Workplace workplace_;
};

TEST_F(CalendarsVerb, renamesWithoutForgettingAnything) {
  const Json before = calendar("Work");
  EXPECT_EQ(workplace_.output({"calendars", "rename", "work", "Büro"}), "Work: renamed to Büro\n");
  Json after = calendar("Büro");
  EXPECT_EQ(after["title"], "Büro");
  after["title"] = "Work";
  EXPECT_EQ(after, before);
  EXPECT_EQ(events("Büro"), "Review (Stand-up) (Stand-up) (Stand-up) ");
  // The file still names it as it was called at first.
  EXPECT_EQ(workplace_.output({"import", "Work.ics"}), "Büro: 2 unchanged\n");

  const CommandResult taken = workplace_.phone({"calendars", "rename", "Büro", "HOME"});
  EXPECT_EQ(taken.exitCode, 1);
  EXPECT_NE(taken.errors.find("\"Home\" already"), std::string::npos) << taken.errors;
  EXPECT_EQ(workplace_.output({"calendars", "rename", "Home", "HOME"}), "Home: renamed to HOME\n");
}

TEST_F(CalendarsVerb, removesWhatIsNamedExactlyAndNothingElse) {
  const Json home = calendar("Home");
  const CommandResult inexact = workplace_.phone({"calendars", "remove", "Home", "work"});
  EXPECT_EQ(inexact.exitCode, 1);
  EXPECT_NE(inexact.errors.find("\"Work\""), std::string::npos) << inexact.errors;
  EXPECT_EQ(calendar("Home"), home);

  EXPECT_EQ(workplace_.output({"calendars", "remove", "Work", "Work"}), "Work: removed, with 2 events\n");
  EXPECT_TRUE(calendar("Work").is_null());
  EXPECT_EQ(events("Work"), "");
  EXPECT_EQ(calendar("Home"), home);
  EXPECT_EQ(events("Home"), "Dinner (Walk) (Walk) (Walk) ");

  // Brought in again, it is a calendar like any new one.
  workplace_.output({"import", "Work.ics"});
  EXPECT_TRUE(calendar("Work")["isShown"].get<bool>());
  EXPECT_FALSE(calendar("Work")["isSelected"].get<bool>());
  EXPECT_EQ(events("Work"), "Review Stand-up Stand-up Stand-up ");
}

TEST_F(CalendarsVerb, removesNothingWhenAFileCannotBeRead) {
  workplace_.shell("echo broken > phone-root/var/mobile/Library/Preferences/com.apple.mobilecal.plist");
  const CommandResult result = workplace_.phone({"calendars", "remove", "Work"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.errors.find("com.apple.mobilecal.plist"), std::string::npos) << result.errors;
  EXPECT_NE(events("Work"), "");
}

}  // namespace
}  // namespace phone
