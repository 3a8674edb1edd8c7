// phone lockscreen, with the verbs that fill and hide what it shows: the road from a calendar file to the
// list.
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/app/command.h"

namespace phone {
namespace {

using Json = nlohmann::json;

constexpr const char* kCalendar =
    "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Example//Example//EN\r\nX-WR-CALNAME:Work\r\n"
    "X-APPLE-CALENDAR-COLOR:#FF0000\r\n"
    "BEGIN:VEVENT\r\nUID:review@example\r\nDTSTAMP:20260101T000000Z\r\nDTSTART:20260307T090000Z\r\n"
    "DTEND:20260307T103000Z\r\nSUMMARY:Design review\r\nLOCATION:Room 4\r\nEND:VEVENT\r\n"
    "BEGIN:VEVENT\r\nUID:trip@example\r\nDTSTAMP:20260101T000000Z\r\nDTSTART;VALUE=DATE:20260308\r\n"
    "DTEND;VALUE=DATE:20260310\r\nSUMMARY:Züge \\, Häfen\r\nEND:VEVENT\r\n"
    "END:VCALENDAR\r\n";

class LockscreenVerb : public testing::Test {
 protected:
  LockscreenVerb() {
    workplace_.output({"create"});
    std::ofstream(workplace_.folder() / "work.ics") << kCalendar;
    EXPECT_EQ(workplace_.output({"import", "work.ics"}), "Work: 2 added\n");
  }

  std::string text(std::vector<std::string> more = {}) {
    return workplace_.output(lookWith(std::move(more)));
  }
  Json json(std::vector<std::string> more = {}) {
    more.emplace_back("--json");
    return Json::parse(workplace_.output(lookWith(std::move(more))));
  }
  std::vector<std::string> titles() {
    std::vector<std::string> all;
    const Json screen = json();
    for (const Json& item : screen["items"]) all.push_back(item["title"]);
    return all;
  }

  Workplace workplace_;

 private:
  static std::vector<std::string> lookWith(std::vector<std::string> more) {
    more.insert(more.begin(), {"lockscreen", "--now", "2026-03-07T09:00"});
    return more;
  }
};

TEST_F(LockscreenVerb, printsTheListTheSameWayEveryTime) {
  workplace_.output({"settings", "set", "displayLocation", "on"});
  const std::string first = text({"--log"});
  EXPECT_TRUE(first.starts_with(
      "Saturday 7 March 2026, 09:00 (Europe/Berlin), iOS 8.4\n\n1  Design review\n   Room 4\n"
      "   Sat 7 Mar, 10:00 - 11:30\n   Tavimo 0, calendar colour #FF0000, opens "
      "x-apple-calevent://"))
      << first;
  EXPECT_NE(first.find("2  Züge , Häfen\n   Sun 8 Mar - Mon 9 Mar, all day\n"), std::string::npos) << first;
  EXPECT_NE(first.find("adding calendar event 'Design review'"), std::string::npos) << first;
  EXPECT_EQ(text({"--log"}), first);
}

TEST_F(LockscreenVerb, printsJson) {
  const Json screen = json({"--ios", "9.3", "--notification", "Anna|Lunch?", "--tap", "2", "--wake", "Anna"});
  EXPECT_EQ(screen["release"], "9.3");
  EXPECT_EQ(screen["now"], "2026-03-07T09:00:00+01:00");
  EXPECT_EQ(screen["timeZone"], "Europe/Berlin");
  EXPECT_TRUE(screen["wake"]["screenTurnsOn"].get<bool>());
  ASSERT_EQ(screen["items"].size(), 3U);
  for (const Json& item : screen["items"]) {
    if (item["title"] == "Anna") {
      EXPECT_EQ(item["kind"], "notification");
      EXPECT_EQ(item["message"], "Lunch?");
      EXPECT_TRUE(item["calendarColor"].is_null());
    } else if (item["title"] == "Design review") {
      EXPECT_EQ(item["kind"], "event");
      EXPECT_EQ(item["identifier"], "Tavimo 0");
      EXPECT_EQ(item["start"], "2026-03-07T10:00:00+01:00");
      EXPECT_EQ(item["end"], "2026-03-07T11:30:00+01:00");
      EXPECT_EQ(item["calendarColor"], "#FF0000");
      EXPECT_TRUE(item["action"]["url"].get<std::string>().starts_with("x-apple-calevent://"));
    }
  }
  EXPECT_EQ(screen["tap"]["action"], screen["items"][1]["action"]);
}

TEST_F(LockscreenVerb, readsTheTimeInThePhonesZoneOrWithAnOffset) {
  const auto now = [this](const std::string& time, const std::string& zone) {
    return Json::parse(workplace_.output({"lockscreen", "--json", "--now", time, "--timezone", zone}))["now"]
        .get<std::string>();
  };
  EXPECT_EQ(now("2026-07-01", "America/New_York"), "2026-07-01T00:00:00-04:00");
  EXPECT_EQ(now("2026-07-01 12:30:15", "Asia/Kolkata"), "2026-07-01T12:30:15+05:30");
  EXPECT_EQ(now("2026-07-01T12:30Z", "Asia/Kolkata"), "2026-07-01T18:00:00+05:30");
  EXPECT_EQ(now("2026-07-01T12:30-02:00", "Europe/Berlin"), "2026-07-01T16:30:00+02:00");
}

TEST_F(LockscreenVerb, leavesHiddenEventsOut) {
  const std::vector<std::string> both{"Design review", "Züge , Häfen"};
  EXPECT_EQ(titles(), both);
  workplace_.output({"hide", "design REVIEW"});
  EXPECT_EQ(titles(), std::vector<std::string>{"Züge , Häfen"});
  EXPECT_NE(text({"--log"}).find("hiding calendar event 'Design review'"), std::string::npos);
  workplace_.output({"unhide", "review@example"});
  EXPECT_EQ(titles(), both);
}

TEST_F(LockscreenVerb, searchesTheCalendarsThatAreChosen) {
  std::ofstream(workplace_.folder() / "home.ics")
      << "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Example//Example//EN\r\nBEGIN:VEVENT\r\nUID:1\r\n"
         "DTSTAMP:20260101T000000Z\r\nDTSTART:20260307T200000Z\r\nSUMMARY:Cinema\r\nEND:VEVENT\r\nEND:"
         "VCALENDAR\r\n";
  workplace_.output({"import", "home.ics"});
  EXPECT_EQ(titles().size(), 3U);
  workplace_.output({"calendars", "hide", "work"});
  EXPECT_EQ(titles(), std::vector<std::string>{"Cinema"});
  workplace_.output({"calendars", "select", "Work"});
  EXPECT_EQ(titles(), std::vector<std::string>{"Cinema"});
  workplace_.output({"settings", "set", "onlySelectedCalendars", "off"});
  EXPECT_EQ(titles().size(), 2U);
  const Json calendars = Json::parse(workplace_.output({"calendars", "list", "--json"}));
  ASSERT_EQ(calendars.size(), 2U);
  EXPECT_EQ(calendars[0]["title"], "Work");
  EXPECT_EQ(calendars[0]["color"], "#FF0000");
  EXPECT_FALSE(calendars[0]["isShown"].get<bool>());
  EXPECT_TRUE(calendars[0]["isSearched"].get<bool>());
  workplace_.output({"calendars", "show", "Work"});
  workplace_.output({"settings", "unset", "onlySelectedCalendars"});
  EXPECT_EQ(titles().size(), 3U);
}

TEST_F(LockscreenVerb, drawsAPictureOfTheAskedSize) {
  workplace_.output(
      {"lockscreen", "--now", "2026-03-07T09:00", "--png", "lock.png", "--scale", "1", "--size", "375x667"});
  std::ifstream stream(workplace_.folder() / "lock.png", std::ios::binary);
  std::array<unsigned char, 24> header{};
  stream.read(reinterpret_cast<char*>(header.data()), header.size());
  const auto number = [&header](std::size_t at) { return header.at(at + 2) * 256 + header.at(at + 3); };
  EXPECT_EQ(number(16), 375);
  EXPECT_EQ(number(20), 667);
}

TEST_F(LockscreenVerb, readsCalendarsFromPipesAndTheStandardInput) {
  const std::string sent = "sed s/Work/Piped/ work.ics";
  EXPECT_EQ(workplace_.shell(sent + " | phone import -").output, "Piped: 2 added\n");
  EXPECT_EQ(workplace_.shell("phone import - <work.ics").output, "Work: 2 unchanged\n");
  EXPECT_EQ(workplace_.shell("phone import <(" + sent + ")").output, "Piped: 2 unchanged\n");
  EXPECT_EQ(workplace_.shell("mkfifo pipe; " + sent + " >pipe & phone import pipe").output,
            "Piped: 2 unchanged\n");
  EXPECT_EQ(workplace_.shell("sed /CALNAME/d work.ics | phone import -").output, "Calendar: 2 added\n");
  EXPECT_EQ(workplace_.phone({"import", "/dev/zero"}).exitCode, 1);
#if defined(__SANITIZE_ADDRESS__)
  const std::string bound;  // The sanitizer reserves more room for itself than any bound would leave.
#else
  const std::string bound = "ulimit -v 1000000; ";
#endif
  const CommandResult endless = workplace_.shell(bound + "yes | tr -d '\\n' | timeout 60 phone import -");
  EXPECT_NE(endless.errors.find("the line is too long"), std::string::npos) << endless.errors;
}

TEST_F(LockscreenVerb, logsDatesOfEveryYear) {
  workplace_.output({"settings", "set", "debugMode", "on"});
  const std::filesystem::path settings =
      workplace_.onPhone("var/mobile/Library/Preferences/org.quenmark.tavimoprefs.plist");
  for (const std::string days : {"-739684", "-2147483648", "2147483647"}) {
    std::ofstream(settings)
        << "<plist version=\"1.0\"><dict><key>debugMode</key><true/><key>daysToDisplay</key><integer>" << days
        << "</integer></dict></plist>";
    const CommandResult result = workplace_.shell("timeout 20 phone lockscreen --now 2026-03-07T09:00 --log");
    EXPECT_EQ(result.exitCode, 0) << days;
    EXPECT_NE(result.output.find("end date: "), std::string::npos) << result.output;
  }
  workplace_.output({"settings", "set", "daysToDisplay", "2"});
  const CommandResult behind = workplace_.shell(
      "phone order set 'System Items' {1..2100} Orvessa && timeout 20 phone lockscreen --now "
      "2026-03-07T09:00 --log");
  EXPECT_EQ(behind.exitCode, 0);
  EXPECT_NE(behind.output.find("Design review"), std::string::npos) << behind.output;
}

TEST_F(LockscreenVerb, takesTheEventsAwayWhileMusicPlays) {
  const Json screen = json({"--now-playing", "--notification", "Anna|Lunch?"});
  ASSERT_EQ(screen["items"].size(), 1U);
  EXPECT_EQ(screen["items"][0]["title"], "Anna");
}

TEST_F(LockscreenVerb, saysWhenAnImportIsBrokenAndChangesNothing) {
  std::ofstream(workplace_.folder() / "broken.ics")
      << "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nBEGIN:VEVENT\r\nUID:2\r\nDTSTART:20260307T200000Z\r\nSUMMARY:"
         "Half\r\n";
  const CommandResult result = workplace_.phone({"import", "work.ics", "broken.ics"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_NE(result.errors.find("broken.ics:"), std::string::npos) << result.errors;
  EXPECT_EQ(titles().size(), 2U);
  EXPECT_EQ(workplace_.output({"import", "work.ics"}), "Work: 2 unchanged\n");
}

}  // namespace
}  // namespace phone
