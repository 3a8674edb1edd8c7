// Calendars that were written to keep a phone busy: searches stay quick and complete within their limits.
#include <ctime>
#include <map>

#include "phone/eventkit/event_query.h"
#include "phone/eventkit/import.h"
#include "phone/eventkit/recurrence_rule.h"
#include "tests/eventkit/core_fixture.h"

namespace phone {
namespace {

class HostileCalendarTest : public CoreTest {
 protected:
  std::size_t count(const std::string& from, const std::string& to) {
    const std::clock_t begin = std::clock();
    const auto found =
        occurrencesInRange(database(), {parseTime(from), parseTime(to)}, {1}, EventZone::utc()).size();
    // Processor time: far above what it takes, far below what walking through the rules would take.
    EXPECT_LT(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC, 5);
    return found;
  }
};

TEST_F(HostileCalendarTest, RulesWithoutMeasureAreCutOff) {
  const struct {
    const char* rule;
    std::size_t expected;
  } rules[] = {
      {"FREQ=SECONDLY", kMostOccurrences},
      {"FREQ=SECONDLY;BYMONTH=1", 0},
      {"FREQ=SECONDLY;INTERVAL=120;BYMINUTE=1", 0},
      {"FREQ=MINUTELY;BYMONTH=2;BYMONTHDAY=30", 0},
      {"FREQ=MINUTELY;UNTIL=99991231T235959Z", kMostOccurrences},
      {"FREQ=HOURLY;INTERVAL=2;BYHOUR=3;COUNT=20000", 0},
      {"FREQ=DAILY;COUNT=2000000000", 1},
      {"FREQ=MONTHLY;BYMONTHDAY=31;BYMONTH=2,4,6", 0},
      {"FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30", 0},
      {"FREQ=YEARLY;INTERVAL=30000", 0},
      {"FREQ=DAILY;UNTIL=19000101", 0},
  };
  std::string events;
  for (const auto& rule : rules) {
    events += eventOf(rule.rule, "20200101T000000Z", rule.rule, std::string("RRULE:") + rule.rule + "\n");
  }
  importCalendars(database(), {write("hostile.ics", calendarOf(events))});
  std::map<std::string, std::size_t> counts;
  for (const auto& event :
       occurrencesInRange(database(), {parseTime("2024-06-10 12:00:00"), parseTime("2024-06-12 00:00:00")},
                          {1}, EventZone::utc())) {
    ++counts[event.title];
  }
  for (const auto& rule : rules) EXPECT_EQ(counts[rule.rule], rule.expected) << rule.rule;
  EXPECT_GT(count("2024-06-10 12:00:00", "2024-06-12 00:00:00"), 0u);
  EXPECT_GT(count("1900-01-01 00:00:00", "9999-01-01 00:00:00"), 0u);
}

TEST_F(HostileCalendarTest, TheEndsOfTimeAreReached) {
  importCalendars(
      database(),
      {write("ends.ics",
             calendarOf(eventOf("1", "00010101T000000", "first") + eventOf("2", "99991231T235959Z", "last") +
                        eventOf("3", "99991231", "last day", "RRULE:FREQ=DAILY\n") +
                        "BEGIN:VEVENT\nUID:4\nDTSTART:20240101T000000Z\nDURATION:P99999999W\n"
                        "SUMMARY:for ever\nEND:VEVENT\n"))});
  EXPECT_EQ(count("0001-01-01 00:00:00", "0001-01-02 00:00:00"), 1u);
  EXPECT_EQ(count("9999-12-31 23:00:00", "9999-12-31 23:59:59"), 2u);
  EXPECT_EQ(count("2024-06-10 00:00:00", "2024-06-11 00:00:00"), 1u);
}

TEST_F(HostileCalendarTest, AZoneCannotKeepThePhoneBusy) {
  std::string zone =
      "BEGIN:VTIMEZONE\nTZID:Evil\nBEGIN:STANDARD\nDTSTART:00010101T000000\nTZOFFSETFROM:+9999\n"
      "TZOFFSETTO:-9999\nRRULE:FREQ=SECONDLY\nEND:STANDARD\n";
  for (int i = 0; i < 20'000; ++i) zone += "BEGIN:DAYLIGHT\nDTSTART:20240101T000000\nEND:DAYLIGHT\n";
  zone += "END:VTIMEZONE\n";
  importCalendars(
      database(),
      {write("zone.ics", calendarOf(zone + "BEGIN:VEVENT\nUID:1\nDTSTART;TZID=Evil:20240610T000000\n"
                                           "RRULE:FREQ=DAILY\nEND:VEVENT\n"
                                           "BEGIN:VEVENT\nUID:2\nDTSTART;TZID=../../etc/passwd:"
                                           "20240610T000000\nEND:VEVENT\n"))});
  EXPECT_GE(count("2024-06-01 00:00:00", "2024-06-20 00:00:00"), 1u);
}

}  // namespace
}  // namespace phone
