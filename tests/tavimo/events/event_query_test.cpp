// Which calendars are searched, over which range, and what is taken of the answer.
#include <gtest/gtest.h>

#include "phone/foundation/log_sink.h"
#include "tests/tavimo/support/script.h"

namespace phone {
namespace {

constexpr const char* kNamedCalendars = "<key>onlySelectedCalendars</key><false/>";
constexpr const char* kDebug = "<key>debugMode</key><true/>";

std::string texts(const Lines& all) {
  std::string list;
  for (const std::string& one : all) list += "<string>" + one + "</string>";
  return "<array>" + list + "</array>";
}

std::string switchedOff(const std::string& value) {
  return "<dict><key>LastDeselectedCalendars</key>" + value + "<key>other</key><true/></dict>";
}

class EventQuery : public testing::Test {
 protected:
  EventQuery() { scriptedStore().calendars = {{"A"}, {"B"}, {"C"}}; }

  /// The calendars of the one search of a load.
  Lines searched() {
    scriptedStore().queries.clear();
    clearLog();
    phone_.load();
    EXPECT_EQ(scriptedStore().queries.size(), 1U);
    return scriptedStore().queries.empty() ? Lines{"no search"} : scriptedStore().queries[0].calendars;
  }

  LockScreen phone_;
};

TEST_F(EventQuery, SearchesTheCalendarsThatTheCalendarAppShows) {
  phone_.write(kSelection, texts({"C"}));
  const struct {
    std::string preferences;
    Lines calendars;
  } rows[] = {{"<dict/>", {"A", "B", "C"}},
              {switchedOff(texts({"B"})), {"A", "C"}},
              {switchedOff(texts({"unknown", "C", "C", "A"})), {"B"}},
              {switchedOff(texts({"a", "B ", ""})), {"A", "B", "C"}},
              {switchedOff(texts({"A", "B", "C"})), {}},
              {switchedOff("<array><integer>1</integer><dict/><string>A</string></array>"), {"B", "C"}},
              {switchedOff("<string>A</string>"), {"A", "B", "C"}},
              {switchedOff("<dict><key>A</key><true/></dict>"), {"A", "B", "C"}},
              {"<array><string>A</string></array>", {}},
              {"<dict><key>Last", {}}};
  for (const auto& [preferences, calendars] : rows) {
    phone_.write(kCalendarApp, preferences);
    EXPECT_EQ(searched(), calendars) << preferences;
    EXPECT_EQ(loggedWith("calendar"), Lines()) << preferences;
  }
  std::filesystem::remove(phone_.preferences(kCalendarApp));
  EXPECT_EQ(searched(), Lines());

  phone_.settings(kDebug);
  phone_.write(kCalendarApp, switchedOff(texts({})));
  searched();
  EXPECT_EQ(loggedWith("calendar config"), (Lines{"TVM: got 2 items from calendar config file"}));
}

TEST_F(EventQuery, SearchesTheNamedCalendarsInTheirOrder) {
  phone_.settings(kNamedCalendars);
  phone_.write(kCalendarApp, switchedOff(texts({"A"})));
  const auto unknown = [](const std::string& identifier) {
    return "TVM: unable to find calendar with UUID " + identifier + ", skipping";
  };
  const struct {
    std::string selection;
    Lines calendars;
    Lines logged;
  } rows[] = {{texts({"C", "A"}), {"C", "A"}, {}},
              {texts({"A", "X", "A"}), {"A", "A"}, {unknown("X")}},
              {texts({"X", "Y"}), {}, {unknown("X"), unknown("Y")}},
              {"<array><integer>7</integer><string>B</string></array>", {"B"}, {unknown("7")}}};
  for (const auto& [selection, calendars, logged] : rows) {
    phone_.write(kSelection, selection);
    EXPECT_EQ(searched(), calendars) << selection;
    EXPECT_EQ(loggedWith("unable to find"), logged) << selection;
  }
}

TEST_F(EventQuery, WithoutNamedCalendarsTheStoreIsNotSearched) {
  phone_.settings(kNamedCalendars);
  scriptedStore().events = {titled("one")};
  for (const char* selection : {"", "<array/>", "<dict><key>A</key><true/></dict>", "<array><string>A"}) {
    if (*selection != '\0') phone_.write(kSelection, selection);
    clearLog();
    phone_.load();
    EXPECT_EQ(loggedWith("no enabled calendars"),
              (Lines{"TVM: no enabled calendars found, not searching the DB!"}))
        << selection;
  }
  EXPECT_TRUE(scriptedStore().queries.empty());
  EXPECT_EQ(phone_.titles(), Lines());
  EXPECT_EQ(exported<NSInteger>("tvmItemsCount"), 0);
}

TEST_F(EventQuery, AsksAfreshAtEveryLoad) {
  searched();
  scriptedStore().calendars.push_back({"D"});
  EXPECT_EQ(searched(), (Lines{"A", "B", "C", "D"}));
  EXPECT_EQ(scriptedStore().connections, 2);
}

TEST_F(EventQuery, TakesTheStoresOrderUpToTheLargestNumber) {
  const auto missing = std::optional<ScriptedEvent>();
  const struct {
    std::vector<std::optional<ScriptedEvent>> found;
    int largest;
    Lines taken;
    std::size_t skipped = 0;
  } rows[] = {{{titled("e"), titled("a"), titled("c"), titled("b"), titled("d")}, 3, {"e", "a", "c"}},
              {{titled("e"), titled("a"), titled("c")}, 0, {"e", "a", "c"}},
              {{titled("e"), titled("a"), titled("c")}, -1, {"e", "a", "c"}},
              {{titled("e"), titled("a")}, 2, {"e", "a"}},
              {{titled("e")}, 5, {"e"}},
              {{missing, titled("a"), titled("b")}, 1, {"a"}, 1},
              {{missing, titled("a"), missing, titled("b"), missing}, 0, {"a", "b"}, 3},
              {{titled("a"), missing}, 1, {"a"}, 0},
              {{missing}, 1, {}, 1}};
  for (const auto& [found, largest, taken, skipped] : rows) {
    phone_.settings("<key>maxEventsToDisplay</key><integer>" + std::to_string(largest) + "</integer>");
    scriptedStore().events = found;
    phone_.makeController();
    clearLog();
    phone_.load();
    EXPECT_EQ(phone_.titles(), taken);
    EXPECT_EQ(exported<NSInteger>("tvmItemsCount"), static_cast<NSInteger>(taken.size()));
    EXPECT_EQ(loggedWith("skipping nil"), Lines(skipped, "TVM: skipping nil event..."));
  }
}

struct RangeCase {
  const char* name;
  const char* timeZone;
  double now;
  int days;
  double end;
  const char* logged;

  friend std::ostream& operator<<(std::ostream& stream, const RangeCase& range) {
    return stream << range.name;
  }
};

class EventRange : public testing::TestWithParam<RangeCase> {};

TEST_P(EventRange, EndsWithTheLastSecondOfTodayPlusWholeDaysOfSeconds) {
  const RangeCase& range = GetParam();
  LockScreen phone({.now = range.now, .timeZone = range.timeZone});
  const std::string days = "<key>daysToDisplay</key><integer>" + std::to_string(range.days) + "</integer>";
  phone.settings(days);
  phone.load();
  ASSERT_EQ(scriptedStore().queries.size(), 1U);
  EXPECT_EQ(scriptedStore().queries[0].start, range.now);
  EXPECT_EQ(scriptedStore().queries[0].end, range.end);
  EXPECT_EQ(loggedWith("start date"), Lines());
  phone.settings(days + kDebug);
  phone.load();
  EXPECT_EQ(loggedWith("start date"), (Lines{range.logged}));
}

INSTANTIATE_TEST_SUITE_P(
    Days, EventRange,
    testing::Values(
        RangeCase{"Today", "UTC", kMorning, 0, utc(2014, 3, 7, 23, 59, 59),
                  "TVM: start date: 2014-03-07 10:00:00 +0000, end date: 2014-03-07 23:59:59 +0000"},
        RangeCase{"Tomorrow", "UTC", kMorning, 1, utc(2014, 3, 8, 23, 59, 59),
                  "TVM: start date: 2014-03-07 10:00:00 +0000, end date: 2014-03-08 23:59:59 +0000"},
        RangeCase{"Yesterday", "UTC", kMorning, -1, utc(2014, 3, 6, 23, 59, 59),
                  "TVM: start date: 2014-03-07 10:00:00 +0000, end date: 2014-03-06 23:59:59 +0000"},
        RangeCase{"LastSecond", "UTC", utc(2014, 3, 7, 23, 59, 59), 0, utc(2014, 3, 7, 23, 59, 59),
                  "TVM: start date: 2014-03-07 23:59:59 +0000, end date: 2014-03-07 23:59:59 +0000"},
        RangeCase{"TheUsersDay", "Asia/Tokyo", utc(2014, 3, 7, 20), 0, utc(2014, 3, 8, 14, 59, 59),
                  "TVM: start date: 2014-03-08 05:00:00 +0900, end date: 2014-03-08 23:59:59 +0900"},
        // Clocks go forward on 30 March 2014: a day of 23 hours, so the end is an hour late.
        RangeCase{"IntoSummerTime", "Europe/Berlin", utc(2014, 3, 29, 11), 1, utc(2014, 3, 30, 22, 59, 59),
                  "TVM: start date: 2014-03-29 12:00:00 +0100, end date: 2014-03-31 00:59:59 +0200"},
        RangeCase{"OnTheDayItself", "Europe/Berlin", utc(2014, 3, 30, 0, 30), 0, utc(2014, 3, 30, 21, 59, 59),
                  "TVM: start date: 2014-03-30 01:30:00 +0100, end date: 2014-03-30 23:59:59 +0200"},
        RangeCase{"OutOfSummerTime", "Europe/Berlin", utc(2014, 10, 25, 10), 1, utc(2014, 10, 26, 21, 59, 59),
                  "TVM: start date: 2014-10-25 12:00:00 +0200, end date: 2014-10-26 22:59:59 +0100"}),
    [](const auto& range) { return range.param.name; });

}  // namespace
}  // namespace phone
