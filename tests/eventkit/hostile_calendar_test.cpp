// Calendars that were written to keep a phone busy: searches stay quick and complete within their limits.
#include <ctime>
#include <map>

#include "phone/calendarstore/database/occurrence_query.h"
#include "phone/calendarstore/ics/calendar_import.h"
#include "phone/calendarstore/recurrence/recurrence_rule.h"
#include "tests/eventkit/core_fixture.h"

namespace phone {
namespace {

/// Processor time that a search or an import may take, in seconds: far above what it takes, far below what
/// walking through the rules would take. Sanitizers and checked messages make everything some ten times
/// slower.
#if defined(NDEBUG)
constexpr double kMaxTime = 5;
#else
constexpr double kMaxTime = 60;
#endif

class HostileCalendarTest : public CoreTest {
 protected:
  FoundOccurrences search(const std::string& from, const std::string& to,
                          const std::vector<std::int64_t>& calendars = {1}) {
    const std::clock_t begin = std::clock();
    FoundOccurrences found =
        occurrencesInRange(database(), {parseTime(from), parseTime(to)}, calendars, EventZone::utc());
    EXPECT_LT(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC, kMaxTime);
    return found;
  }

  std::size_t count(const std::string& from, const std::string& to) {
    return search(from, to).occurrences.size();
  }
};

/// The lines so many times, with # for a number of five digits.
std::string repeated(int times, const std::string& lines) {
  std::string all;
  for (int i = 10'000; i < 10'000 + times; ++i) {
    for (const char c : lines) c == '#' ? all += std::to_string(i) : all += c;
  }
  return all;
}

TEST_F(HostileCalendarTest, RulesWithoutMeasureAreCutOff) {
  const struct {
    const char* rule;
    std::size_t expected;
  } rules[] = {
      {"FREQ=SECONDLY", kMaxOccurrencesOfRule},
      {"FREQ=SECONDLY;BYMONTH=1", 0},
      {"FREQ=SECONDLY;INTERVAL=120;BYMINUTE=1", 0},
      {"FREQ=MINUTELY;BYMONTH=2;BYMONTHDAY=30", 0},
      {"FREQ=MINUTELY;UNTIL=99991231T235959Z", kMaxOccurrencesOfRule},
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
                          {1}, EventZone::utc())
           .occurrences) {
    ++counts[event.title];
  }
  for (const auto& rule : rules) EXPECT_EQ(counts[rule.rule], rule.expected) << rule.rule;
  EXPECT_GT(count("2024-06-10 12:00:00", "2024-06-12 00:00:00"), 0u);
  EXPECT_GT(count("1900-01-01 00:00:00", "9999-01-01 00:00:00"), 0u);
}

TEST_F(HostileCalendarTest, FilesMadeToKeepAPhoneBusyDoNot) {
  const std::string everySecond = "RRULE:FREQ=SECONDLY\n";
  const auto events = [](int times, const std::string& lines) {
    return repeated(times, "BEGIN:VEVENT\nUID:#\nDTSTART:20200101T000000Z\n" + lines + "END:VEVENT\n");
  };
  const struct {
    const char* what;
    std::string events;
    std::size_t expected;
  } files[] = {
      {"every second", events(5000, everySecond), kMaxOccurrences},
      {"every second for ten years", events(5000, "DURATION:P3650D\n" + everySecond), kMaxOccurrences},
      // Only the second day is left.
      {"excluded days", events(5000, everySecond + "EXDATE;VALUE=DATE:20240610\n"), kMaxOccurrences},
      {"seconds that are never met", events(2000, "RRULE:FREQ=SECONDLY;INTERVAL=2;BYSECOND=1,3,5\n"), 0},
      {"days that never come", events(2000, "RRULE:FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30;COUNT=9\n"), 0},
      {"many rules", events(1, repeated(20'000, everySecond)), kMaxOccurrencesOfRule},
      {"many rules that differ", events(1, repeated(20'000, "RRULE:FREQ=SECONDLY;UNTIL=20240611T0#Z\n")),
       kMaxOccurrencesOfRule},
      // A hundred of them are followed, at noon of both days, and then what is in none of them.
      {"many zones",
       repeated(120,
                "BEGIN:VTIMEZONE\nTZID:Z#\nBEGIN:STANDARD\nDTSTART:19700101T000000\nTZOFFSETFROM:+0100\n"
                "TZOFFSETTO:+0200\nEND:STANDARD\nEND:VTIMEZONE\n") +
           repeated(120,
                    "BEGIN:VEVENT\nUID:#\nDTSTART;TZID=Z#:20200101T120000\nRRULE:FREQ=DAILY\nEND:VEVENT\n") +
           "BEGIN:VEVENT\nUID:last\nDTSTART:20200101T120000Z\nRRULE:FREQ=DAILY\nEND:VEVENT\n",
       202},
      {"another calendar", events(2000, "RRULE:RSCALE=CHINESE;FREQ=YEARLY\n"), 0},
      {"sets of a year's seconds",
       events(500,
              "RRULE:FREQ=YEARLY;BYDAY=SU,MO,TU,WE,TH,FR,SA;BYHOUR=0,1,2,3,4,5,6,7,8,9;"
              "BYMINUTE=0,1,2,3,4,5,6,7,8,9;BYSECOND=0,1,2,3,4,5,6,7,8,9;BYSETPOS=1,300,-1\n"),
       0},
  };
  for (const auto& file : files) {
    database_.reset();
    std::filesystem::remove_all(folder_);
    importCalendars(database(), {write("busy.ics", calendarOf(file.events))});
    EXPECT_EQ(count("2024-06-10 00:00:00", "2024-06-12 00:00:00"), file.expected) << file.what;
  }
}

TEST_F(HostileCalendarTest, EndsAreLookedForWithinMeasureAndTheRestIsSaid) {
  for (const char* const rule : {"FREQ=MINUTELY;BYMONTH=2;BYMONTHDAY=29;BYHOUR=3;COUNT=19999",
                                 "RSCALE=CHINESE;FREQ=MONTHLY;COUNT=99"}) {
    database_.reset();
    std::filesystem::remove_all(folder_);
    const std::clock_t begin = std::clock();
    const ImportResult result = importCalendars(
        database(),
        {write("many.ics", calendarOf(eventOf("first", "20240610T000000Z", "", "RRULE:FREQ=DAILY;COUNT=2\n") +
                                      repeated(8000, "BEGIN:VEVENT\nUID:#\nDTSTART:20320229T030000Z\nRRULE:" +
                                                         std::string(rule) + "\nEND:VEVENT\n")))});
    EXPECT_LT(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC, kMaxTime) << rule;
    ASSERT_EQ(result.warnings.size(), 1U) << rule;
    EXPECT_NE(result.warnings.front().find("numbers of occurrences too large to count"), std::string::npos);
    EXPECT_EQ(count("2024-06-10 00:00:00", "2024-06-13 00:00:00"), 2U) << rule;
  }
}

TEST_F(HostileCalendarTest, TheEarliestOfAllAreKeptAndTheRestIsSaid) {
  constexpr int kBusy = 20;
  const auto busy = [](const char* uid) {
    return repeated(kBusy,
                    std::string("BEGIN:VEVENT\nUID:") + uid +
                        "#\nSUMMARY:busy\nDTSTART:20240610T010000Z\nRRULE:FREQ=SECONDLY\nEND:VEVENT\n");
  };
  importCalendars(
      database(),
      {write("busy.ics", calendarOf(busy("a"))),
       write("ordinary.ics", calendarOf(eventOf("early", "20240610T000000Z", "early") +
                                        eventOf("daily", "20240501T010000Z", "daily", "RRULE:FREQ=DAILY\n") +
                                        eventOf("late", "20240610T230000Z", "late")))});
  const auto titles = [](const FoundOccurrences& found) {
    std::map<std::string, std::size_t> counts;
    for (const EventOccurrence& event : found.occurrences) ++counts[event.title];
    return counts;
  };
  const FoundOccurrences all = search("2024-06-10 00:00:00", "2024-06-11 00:00:00", {1, 2});
  const std::map<std::string, std::size_t> expected{
      {"early", 1}, {"daily", 1}, {"busy", kMaxOccurrences - 2}};
  EXPECT_EQ(titles(all), expected);
  // The busy ones come in turn, so the last that is kept starts after so many seconds.
  EXPECT_EQ(showTime(all.occurrences.back().start), "2024-06-10 01:04:09");
  ASSERT_FALSE(all.omissions.empty());
  EXPECT_NE(all.omissions.back().find("after 2024-06-10T01:04:09"), std::string::npos);

  // What is not searched takes nobody's place.
  const FoundOccurrences ordinary = search("2024-06-10 00:00:00", "2024-06-11 00:00:00", {2});
  EXPECT_EQ(titles(ordinary), (std::map<std::string, std::size_t>{{"early", 1}, {"daily", 1}, {"late", 1}}));
  EXPECT_TRUE(ordinary.omissions.empty());
}

TEST_F(HostileCalendarTest, ASearchThatFoundNothingSaysThatItGaveUp) {
  const std::string never =
      "BEGIN:VEVENT\nUID:#\nDTSTART:20200101T000000Z\n"
      "RRULE:FREQ=SECONDLY;INTERVAL=2;BYSECOND=1,3,5\nEND:VEVENT\n";
  importCalendars(database(), {write("never.ics", calendarOf(repeated(2000, never)))});
  const FoundOccurrences found = search("2024-06-10 00:00:00", "2024-06-12 00:00:00");
  EXPECT_TRUE(found.occurrences.empty());
  EXPECT_EQ(found.omissions.size(), 1u);
}

TEST_F(HostileCalendarTest, LongTitlesAreNotCopiedForEver) {
  const std::string title(300'000, 'x');
  importCalendars(
      database(),
      {write("long.ics", calendarOf(eventOf("1", "20240610T000000Z", title, "RRULE:FREQ=HOURLY\n")))});
  const FoundOccurrences found = search("2024-06-10 00:00:00", "2024-06-12 00:00:00");
  EXPECT_EQ(found.occurrences.size(), kMaxTextSize / title.size());
  EXPECT_EQ(found.omissions.size(), 1u);
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

TEST_F(HostileCalendarTest, ThousandsOfZonesCannotEither) {
  const std::string zone =
      "BEGIN:VTIMEZONE\nTZID:Own#\nBEGIN:STANDARD\nDTSTART:16011025T030000\n"
      "RRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=10\nTZOFFSETFROM:+0200\nTZOFFSETTO:+0100\nEND:STANDARD\n"
      "BEGIN:DAYLIGHT\nDTSTART:16010329T020000\nRRULE:FREQ=YEARLY;BYDAY=-1SU;BYMONTH=3\n"
      "TZOFFSETFROM:+0100\nTZOFFSETTO:+0200\nEND:DAYLIGHT\nEND:VTIMEZONE\n"
      "BEGIN:VEVENT\nUID:#\nDTSTART;TZID=Own#:99990610T000000\nRRULE:FREQ=DAILY\nEND:VEVENT\n";
  const std::clock_t begin = std::clock();
  importCalendars(database(), {write("zones.ics", calendarOf(repeated(2'400, zone)))});
  EXPECT_LT(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC, kMaxTime);
  EXPECT_GE(count("9999-06-11 00:00:00", "9999-06-11 23:00:00"), 1u);
}

}  // namespace
}  // namespace phone
