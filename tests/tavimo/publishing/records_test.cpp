// The records that one load of the list publishes: their fields and the order in which they are set, their
// identifiers, launch actions and ordering dates.
#include <gtest/gtest.h>

#include "phone/foundation/log_sink.h"
#include "tests/tavimo/support/script.h"

namespace phone {
namespace {

constexpr const char* kOwnFirst = "<array><string>Orvessa</string><string>System Items</string></array>";
constexpr const char* kOwnLast = "<array><string>System Items</string><string>Orvessa</string></array>";

/// Watches every setter of a record.
void watchSetters() {
  for (const char* setter : {"setTitle:", "setMessage:", "setSubtitle:", "setSection:", "setBulletinID:"}) {
    watch<void(NSString*)>("BBBulletin", setter);
  }
  for (const char* setter : {"setDate:", "setEndDate:", "setPublicationDate:", "setLastInterruptDate:"}) {
    watch<void(NSDate*)>("BBBulletin", setter);
  }
  for (const char* setter : {"setShowsMessagePreview:", "setDateIsAllDay:"}) {
    watch<void(bool)>("BBBulletin", setter);
  }
  watch<void(BBAction*)>("BBBulletin", "setDefaultAction:");
}

ScriptedEvent dentist() {
  return {.title = "Dentist",
          .start = utc(2014, 3, 7, 15, 30),
          .end = utc(2014, 3, 7, 16),
          .location = "Main Street 1"};
}

TEST(Records, FieldsAreSetInOrderAndOnlyTheOnesAskedFor) {
  LockScreen phone({.beforePlugin = watchSetters});
  scriptedStore().calendars = {{"RED"}, {"BLUE", {{0x1B / 255.0, 0xAD / 255.0, 0.9731}}}};
  scriptedStore().events = {dentist()};
  phone.settings("<key>swipeAction</key><integer>0</integer><key>compatibilityMode</key><false/>");
  EXPECT_EQ(messagesOfLoad(phone),
            (Lines{"setTitle: Dentist", "setMessage: TVM|#FF0000", "setShowsMessagePreview: true",
                   "setDateIsAllDay: false", "setDate: 2014-03-07 15:30:00 +0000",
                   "setEndDate: 2014-03-07 16:00:00 +0000", "setBulletinID: Tavimo 0"}));

  phone.settings(
      "<key>swipeAction</key><integer>3</integer><key>customLaunchAppBundleID</key><string>app</string>"
      "<key>displayLocation</key><true/><key>compatibilityMode</key><true/>");
  phone.write(kOrdering, kOwnFirst);
  scriptedStore().events[0]->isAllDay = true;
  scriptedStore().events[0]->calendar = 1;
  Lines all = messagesOfLoad(phone);
  std::erase_if(all, [](const std::string& line) { return line.starts_with("setDefaultAction: <BBAction"); });
  EXPECT_EQ(all, (Lines{"setTitle: Dentist", "setMessage: TVM|#1BADF8", "setShowsMessagePreview: true",
                        "setSubtitle: Main Street 1", "setDateIsAllDay: true",
                        "setDate: 2014-03-07 15:30:00 +0000", "setEndDate: 2014-03-07 16:00:00 +0000",
                        "setSection: com.apple.mobilecal", "setPublicationDate: 2025-03-02 10:00:00 +0000",
                        "setLastInterruptDate: 2025-03-02 10:00:00 +0000", "setBulletinID: Tavimo 0"}));
  EXPECT_EQ(sentMessages().size(), all.size() + 1);
  EXPECT_TRUE(sentMessages()[8].starts_with("setDefaultAction: <BBAction"));
}

TEST(Records, AnEventWithoutAnythingIsPublishedWithoutAnything) {
  LockScreen phone({.beforePlugin = watchSetters});
  scriptedStore().calendars.push_back({"WITHOUT-COLOUR", std::nullopt});
  phone.settings("<key>displayLocation</key><true/><key>debugMode</key><true/>");
  constexpr std::size_t kNoCalendar = 99;
  for (const std::size_t calendar : {std::size_t{1}, kNoCalendar}) {
    scriptedStore().events = {
        ScriptedEvent{.start = {}, .end = {}, .calendar = calendar, .identifier = std::nullopt}};
    EXPECT_EQ(messagesOfLoad(phone),
              (Lines{"setTitle: none", "setMessage: TVM|#FFFFFF", "setShowsMessagePreview: true",
                     "setSubtitle: none", "setDateIsAllDay: false", "setDate: none", "setEndDate: none",
                     "setSection: com.apple.mobilecal", "setBulletinID: Tavimo 0"}));
  }
}

TEST(Records, AreMadeWhileTheEventsStoreLives) {
  LockScreen phone;
  scriptedStore().events = {dentist(), titled("two")};
  scriptedStore().events[0]->url = "x-apple-calevent://RED/dentist?o=1";
  phone.settings("<key>displayLocation</key><true/>");
  for (const bool hidden : {false, true}) {
    phone.makeController();
    phone.load();
    // An event loses its content with its store.
    Lines expected{"Dentist|Main Street 1|TVM|#FF0000|x-apple-calevent://CAL/UID?o=415899000.0",
                   "two||TVM|#FF0000|x-apple-calevent://CAL/UID?o=415879200.0"};
    if (hidden) expected.erase(expected.begin());
    Lines listed;
    for (const ListRow& row : phone.rows()) {
      listed.push_back(row.title + "|" + row.subtitle + "|" + row.message + "|" + row.launchURL);
    }
    EXPECT_EQ(listed, expected);
    phone.write(kHiddenEvents, "<dict><key>x-apple-calevent://RED/dentist</key><string>N</string></dict>");
  }
  EXPECT_EQ(scriptedStore().connections, 2);
  EXPECT_EQ(scriptedStore().outlivingEvents, 0);
}

TEST(Records, LaunchActionFollowsTheSettingAndTheEvent) {
  LockScreen phone({.timeZone = "Europe/Berlin"});
  const double midnight = utc(2014, 3, 7);
  const struct {
    const char* settings;
    ScriptedEvent event;
    const char* url;
    const char* application;
  } rows[] = {
      {"<key>swipeAction</key><integer>1</integer>",
       {.start = midnight, .identifier = "A:B/RID=123"},
       "x-apple-calevent://A/B?o=415843200.0",
       ""},
      {"", {.start = midnight + 0.06, .identifier = "A:B:C"}, "x-apple-calevent://A/B/C?o=415843200.1", ""},
      {"", {.start = -0.5, .identifier = "A:B/RID=1/RID=2"}, "x-apple-calevent://A/B?o=-0.5", ""},
      {"", {.start = midnight, .identifier = "AB"}, "x-apple-calevent://AB?o=415843200.0", ""},
      {"", {.identifier = std::nullopt}, "", ""},
      {"", {.identifier = "no url"}, "", ""},
      {"", {.start = {}}, "", ""},
      // Shortly before midnight UTC it is the next day in Berlin.
      {"<key>swipeAction</key><integer>2</integer>",
       {.start = utc(2014, 3, 6, 23, 30), .identifier = std::nullopt},
       "fantastical2://show?date=2014-3-7",
       ""},
      {"<key>swipeAction</key><integer>2</integer>",
       {.start = utc(2014, 12, 31, 22, 59)},
       "fantastical2://show?date=2014-12-31",
       ""},
      {"<key>swipeAction</key><integer>2</integer>", {.start = {}}, "", ""},
      {"<key>swipeAction</key><integer>3</integer>"
       "<key>customLaunchAppBundleID</key><string>org.example.app</string>",
       {},
       "",
       "org.example.app"},
      {"<key>swipeAction</key><integer>3</integer><key>customLaunchAppBundleID</key><string></string>",
       {},
       "",
       ""},
      {"<key>swipeAction</key><integer>3</integer>", {}, "", ""},
      {"<key>swipeAction</key><integer>0</integer>", {}, "", ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.settings + row.event.identifier.value_or("none"));
    phone.settings(row.settings);
    scriptedStore().events = {row.event};
    phone.load();
    ASSERT_EQ(phone.rows().size(), 1U);
    EXPECT_EQ(phone.rows()[0].launchURL, row.url);
    EXPECT_EQ(phone.rows()[0].launchBundleID, row.application);
  }
}

TEST(Records, AddressIsLoggedInDebugModeOnly) {
  LockScreen phone;
  scriptedStore().events = {ScriptedEvent{.start = utc(2014, 3, 7), .identifier = "A:B/RID=123"}};
  phone.load();
  EXPECT_EQ(loggedWith("event identifier"), Lines());
  phone.settings("<key>debugMode</key><true/>");
  phone.load();
  EXPECT_EQ(loggedWith("event identifier"), (Lines{"TVM: event identifier: A:B/RID=123, URL: "
                                                   "x-apple-calevent://A/B?o=415843200.0"}));
}

TEST(Records, OrderingDatesFollowThePositionInTheQuery) {
  LockScreen phone;
  for (int i = 0; i < 400; ++i) scriptedStore().events.push_back(titled(std::to_string(i)));
  phone.write(kHiddenEvents, "<dict><key>x-apple-calevent://RED/1</key><string>N</string></dict>");
  const struct {
    const char* ordering;
    std::optional<double> dateOfFirst;
  } rows[] = {{kOwnFirst, utc(2024, 3, 7, 10) + 360 * 86400.0},
              {kOwnLast, utc(2003, 3, 7, 10) + 360 * 86400.0},
              {"<array><string>System Items</string></array>", std::nullopt}};
  for (const auto& [ordering, dateOfFirst] : rows) {
    SCOPED_TRACE(ordering);
    phone.write(kOrdering, ordering);
    phone.makeController();
    phone.load();
    const std::vector<ListRow> listed = phone.rows();
    ASSERT_EQ(listed.size(), 399U);
    for (const std::size_t row : {0, 1, 358, 359, 360, 398}) {
      const std::size_t position = row == 0 ? 0 : row + 1;
      EXPECT_EQ(listed[row].identifier, "Tavimo " + std::to_string(position));
      std::optional<double> expected = dateOfFirst;
      if (expected) *expected -= 86400.0 * static_cast<double>(position);
      EXPECT_EQ(listed[row].publicationDate, expected) << position;
      EXPECT_EQ(listed[row].lastInterruptDate, expected) << position;
    }
  }
}

TEST(Records, OrderingDatesKeepTheTimeOfDayInTheUsersTimeZone) {
  LockScreen phone({.timeZone = "Europe/Berlin"});
  scriptedStore().events.assign(200, titled("again"));
  phone.write(kOrdering, kOwnFirst);
  phone.settings("<key>debugMode</key><true/>");
  phone.load();
  // 11:00 in Berlin: in UTC 10:00 in winter, but 9:00 in summer.
  EXPECT_EQ(phone.rows().front().publicationDate, utc(2025, 3, 2, 10));
  EXPECT_EQ(phone.rows().back().publicationDate, utc(2024, 8, 15, 9));
  const Lines logged = loggedWith("last interrupt date");
  ASSERT_EQ(logged.size(), 200U);
  EXPECT_EQ(logged.front(), "TVM: bulletin last interrupt date: 2025-03-02 11:00:00 +0100");
}

}  // namespace
}  // namespace phone
