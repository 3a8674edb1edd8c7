// Times of every year that the calendar has, through all doors: typed, imported, listed, shown, locked.
#include <fstream>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "tests/app/command.h"

namespace phone {
namespace {

using Json = nlohmann::json;

struct FarDay {
  const char* day;
  const char* shown;
};

/// Ends of what the calendar has, of the Julian calendar, and of what nanoseconds reach.
constexpr FarDay kFarDays[] = {
    {"0001-01-02", "Tuesday, Jan 2, 0001"}, {"1582-10-10", "Sunday, Oct 10, 1582"},
    {"1676-06-01", "Monday, Jun 1, 1676"},  {"2263-06-01", "Monday, Jun 1, 2263"},
    {"2500-06-01", "Tuesday, Jun 1, 2500"}, {"9999-12-31", "Friday, Dec 31, 9999"},
};

class FarTimes : public testing::Test {
 protected:
  FarTimes() { workplace_.output({"create"}); }

  std::string inUtc(std::vector<std::string> words) {
    words.insert(words.end(), {"--timezone", "UTC"});
    return workplace_.output(words);
  }
  /// The one event of that day, as it is listed, shown and put on the lock screen.
  void expectEverywhere(const FarDay& far, const std::string& title) {
    const std::string day = far.day;
    const std::string now = day + "T00:00";
    const Json listed = Json::parse(inUtc({"event", "list", "--json", "--days", "1", "--now", now}));
    ASSERT_EQ(listed.size(), 1U) << day;
    EXPECT_EQ(listed[0]["title"], title);
    EXPECT_EQ(listed[0]["start"], day + "T10:00:00+00:00");
    EXPECT_EQ(listed[0]["end"], day + "T23:59:59+00:00");
    const std::string shown = inUtc({"event", "show", title});
    EXPECT_NE(shown.find(far.shown), std::string::npos) << shown;
    const Json locked = Json::parse(inUtc({"lockscreen", "--json", "--now", now}));
    ASSERT_EQ(locked["items"].size(), 1U) << day;
    EXPECT_EQ(locked["now"], day + "T00:00:00+00:00");
    EXPECT_EQ(locked["items"][0]["start"], day + "T10:00:00+00:00") << locked;
  }

  Workplace workplace_;
};

TEST_F(FarTimes, whatIsTypedIsStoredAndShown) {
  for (const FarDay& far : kFarDays) {
    const std::string day = far.day;
    inUtc({"event", "new", "--title", day, "--start", day + "T10:00", "--end", day + "T23:59:59"});
    expectEverywhere(far, day);
  }
}

TEST_F(FarTimes, whatIsImportedIsStoredAndShown) {
  std::ofstream file(workplace_.folder() / "far.ics");
  file << "BEGIN:VCALENDAR\n";
  for (const FarDay& far : kFarDays) {
    std::string digits = far.day;
    std::erase(digits, '-');
    file << "BEGIN:VEVENT\nUID:" << digits << "\nSUMMARY:" << far.day << "\nDTSTART:" << digits
         << "T100000Z\nDTEND:" << digits << "T235959Z\nEND:VEVENT\n";
  }
  file << "END:VCALENDAR\n";
  file.close();
  workplace_.output({"import", "far.ics"});
  for (const FarDay& far : kFarDays) expectEverywhere(far, far.day);
}

TEST_F(FarTimes, theClockOfAPlaceIsKeptToTheSecond) {
  // Berlin's clocks went by its sun before there were zones: 53 minutes and 28 seconds ahead.
  workplace_.output({"event", "new", "--title", "Old", "--start", "1700-06-01T10:00"});
  const auto listed = [this](const std::string& now) {
    return Json::parse(workplace_.output({"event", "list", "--json", "--days", "1", "--now", now}));
  };
  const std::string start = "1700-06-01T10:00:00+00:53:28";
  ASSERT_EQ(listed("1700-06-01T00:00").size(), 1U);
  EXPECT_EQ(listed("1700-06-01T00:00")[0]["start"], start);
  EXPECT_EQ(listed(start).size(), 1U) << "what is printed can be typed";
}

TEST_F(FarTimes, whatLiesOutsideIsRefused) {
  const std::vector<std::string> event{"event", "new", "--title", "Far", "--timezone", "UTC", "--start"};
  const struct {
    std::vector<std::string> words;
    int exitCode;
  } refused[] = {
      {{"10000-01-01T00:00"}, 2},
      {{"0000-12-31T23:00"}, 2},
      {{"-0044-03-15T10:00"}, 2},
      {{"9999-12-31T23:30-01:00"}, 2},
      {{"9999-12-31T23:30"}, 1},  // An hour on, the year is over.
      {{"9999-12-31T10:00", "--end", "10000-01-01T00:00"}, 2},
  };
  for (const auto& [words, exitCode] : refused) {
    std::vector<std::string> all = event;
    all.insert(all.end(), words.begin(), words.end());
    const CommandResult result = workplace_.phone(all);
    EXPECT_EQ(result.exitCode, exitCode) << words.front() << ": " << result.errors;
    EXPECT_NE(result.errors.find("outside the years 1 to 9999"), std::string::npos) << result.errors;
  }
  EXPECT_EQ(workplace_.phone({"lockscreen", "--now", "12000-01-01"}).exitCode, 2);
}

}  // namespace
}  // namespace phone
