// Rules as they are read from files and kept: their ends, what they ignore, and cases whose dates were worked
// out by hand. check_recurrence holds thousands of others against an independent library.
#include "phone/calendarstore/recurrence/recurrence_rule.h"

#include <gtest/gtest.h>

#include "phone/calendarstore/recurrence/ical_owned.h"
#include "tests/eventkit/core_fixture.h"
#include "tests/support/heap.h"

namespace phone {
namespace {

std::optional<RecurrenceRule> read(const std::string& text, const std::string& start,
                                   const EventZone& zone = EventZone::utc()) {
  const icalrecurrencetype rule = icalrecurrencetype_from_string(text.c_str());
  const OwnedIcalText calendar(rule.rscale);
  WalkBudget toEnds(kMaxStepsToEnds);
  return RecurrenceRule::fromFile(rule, {parseTime(start), start.size() == 10, zone}, toEnds);
}

/// The first occurrences behind the start, a space after each; a date stands for its midnight.
std::string next(const RecurrenceRule& rule, const std::string& start, int count) {
  std::string text;
  WalkBudget budget(10'000'000);
  rule.forEachStart(parseTime(start) + 1, parseTime("2400-01-01"), budget, [&](Seconds time) {
    const std::string shown = showTime(time);
    text += (shown.ends_with(" 00:00:00") ? shown.substr(0, 10) : shown) + " ";
    return --count > 0;
  });
  return text;
}

TEST(RecurrenceRuleTest, DatesWorkedOutByHand) {
  const struct {
    const char* start;
    const char* rule;
    const char* next;
  } cases[] = {
      // Weeks that begin on another day, and every other one of them.
      {"2011-11-04", "FREQ=WEEKLY;INTERVAL=2;WKST=SA;BYDAY=FR,SU", "2011-11-13 2011-11-18 2011-11-27 "},
      {"1997-08-05", "FREQ=WEEKLY;INTERVAL=2;BYDAY=TU,SU;WKST=MO", "1997-08-10 1997-08-19 1997-08-24 "},
      {"1997-08-05", "FREQ=WEEKLY;INTERVAL=2;BYDAY=TU,SU;WKST=SU", "1997-08-17 1997-08-19 1997-08-31 "},
      {"2024-01-31", "FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,WE,FR;BYSETPOS=1", "2024-02-12 2024-02-26 "},
      // Days counted from a month's end, in daily rules too.
      {"2024-01-30", "FREQ=DAILY;BYMONTHDAY=-1", "2024-01-31 2024-02-29 2024-03-31 "},
      {"2024-01-15", "FREQ=YEARLY;BYMONTHDAY=15", "2024-02-15 2024-03-15 "},
      {"2024-01-15", "FREQ=YEARLY;BYMONTH=3", "2024-03-15 2025-03-15 "},
      // Week 53 of 2020 ends on 3 January 2021; week 1 of 2025 begins on 30 December 2024.
      {"2020-12-28", "FREQ=YEARLY;BYWEEKNO=53;BYDAY=MO,SU", "2021-01-03 2026-12-28 2027-01-03 "},
      {"2024-01-01", "FREQ=YEARLY;BYWEEKNO=1;BYDAY=MO", "2024-12-30 2025-12-29 2027-01-04 "},
      {"2024-12-30", "FREQ=YEARLY;INTERVAL=2;BYWEEKNO=1", "2027-01-04 2029-01-01 "},
      {"2024-01-03", "FREQ=YEARLY;BYWEEKNO=-1;BYDAY=SU,MO;BYSETPOS=-1", "2024-12-29 2025-12-28 2027-01-03 "},
      // What the rule leaves open comes from the start: a Wednesday.
      {"2024-01-31 10:00:00", "FREQ=YEARLY;BYWEEKNO=7", "2024-02-14 10:00:00 2025-02-12 10:00:00 "},
      {"2024-01-31 10:00:00", "FREQ=DAILY;INTERVAL=2;BYHOUR=8,12,20;BYSETPOS=-2",
       "2024-01-31 12:00:00 2024-02-02 12:00:00 "},
      {"2024-01-31 10:00:00", "FREQ=MONTHLY;BYDAY=FR;BYHOUR=9,17;BYMINUTE=0,30;BYSETPOS=-3",
       "2024-02-23 09:30:00 "},
      {"2024-01-31 10:20:00", "FREQ=HOURLY;BYMINUTE=10,30,50;BYSETPOS=2", "2024-01-31 10:30:00 "},
      {"2024-01-31 10:00:00", "FREQ=SECONDLY;INTERVAL=32767;BYHOUR=10;BYMINUTE=0;BYSECOND=1",
       "2029-10-18 10:00:01 "},
      // A leap second is the one before.
      {"2024-01-31 10:00:00", "FREQ=DAILY;BYSECOND=60,59", "2024-01-31 10:00:59 2024-02-01 10:00:59 "},
      // Parts without a meaning in such a rule.
      {"2024-01-31", "FREQ=DAILY;BYHOUR=8,20;BYMINUTE=30", "2024-02-01 2024-02-02 "},
      {"2024-01-31", "FREQ=WEEKLY;BYDAY=2MO", "2024-02-05 2024-02-12 "},
      {"2024-01-31", "FREQ=YEARLY;BYMONTH=2L", ""},
      {"2024-01-31", "FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30", ""},
      // Other calendars: the Chinese new year, and a month's end brought forward.
      {"2020-01-25", "RSCALE=CHINESE;FREQ=YEARLY", "2021-02-12 2022-02-01 "},
      {"2020-01-31", "RSCALE=GREGORIAN;FREQ=MONTHLY;SKIP=BACKWARD", "2020-02-29 2020-03-31 "},
      {"2020-01-31", "RSCALE=GREGORIAN;FREQ=DAILY", "2020-02-01 "},
  };
  for (const auto& each : cases) {
    const auto rule = read(each.rule, each.start);
    ASSERT_TRUE(rule) << each.rule;
    const std::string expected = each.next;
    const auto count = static_cast<int>(std::count(expected.begin(), expected.end(), '-') / 2);
    EXPECT_EQ(next(*rule, each.start, std::max(count, 1)), expected) << each.rule;
  }
}

TEST(RecurrenceRuleTest, ACountBecomesAnEnd) {
  const struct {
    const char* rule;
    const char* last;
  } rules[] = {{"FREQ=DAILY;COUNT=10", "2024-03-10 10:00:00"},
               {"FREQ=WEEKLY;BYDAY=FR;COUNT=2", "2024-03-08 10:00:00"},
               // The start, a Friday, is the first of the three.
               {"FREQ=WEEKLY;BYDAY=MO;COUNT=3", "2024-03-11 10:00:00"},
               // What is named twice happens once.
               {"FREQ=WEEKLY;BYDAY=MO,MO,MO;COUNT=3", "2024-03-11 10:00:00"},
               {"FREQ=DAILY;BYHOUR=10,10,20;COUNT=4", "2024-03-02 20:00:00"},
               {"FREQ=MINUTELY;INTERVAL=7;COUNT=3", "2024-03-01 10:14:00"},
               {"FREQ=MONTHLY;COUNT=4800;BYMONTHDAY=1", "2424-02-01 10:00:00"},
               {"RSCALE=ETHIOPIC;FREQ=YEARLY;COUNT=3", "2026-03-01 10:00:00"}};
  for (const auto& rule : rules) {
    const auto ended = read(rule.rule, "2024-03-01 10:00:00");
    ASSERT_TRUE(ended) << rule.rule;
    EXPECT_EQ(showTime(ended->lastStart()), rule.last) << rule.rule;
    EXPECT_EQ(ended->text().find("COUNT"), std::string::npos) << ended->text();
  }
  EXPECT_NE(read("RSCALE=ETHIOPIC;FREQ=YEARLY;COUNT=100", "2024-03-01 10:00:00")->lastStart(), kEndless);
  for (const char* const rule :
       {"FREQ=SECONDLY;COUNT=20001", "FREQ=MONTHLY;COUNT=20000", "RSCALE=ETHIOPIC;FREQ=YEARLY;COUNT=101"}) {
    EXPECT_EQ(read(rule, "2024-03-01 10:00:00")->lastStart(), kEndless) << rule;
  }
}

TEST(RecurrenceRuleTest, AnEndInUniversalTimeIsReadWhereTheEventIs) {
  const EventZone berlin = *EventZone::named("Europe/Berlin");
  const EventZone newYork = *EventZone::named("America/New_York");
  // Midnight of the last day, as programs in either place write it.
  EXPECT_EQ(next(*read("FREQ=DAILY;UNTIL=20240602T220000Z", "2024-06-01", berlin), "2024-06-01", 9),
            "2024-06-02 2024-06-03 ");
  EXPECT_EQ(next(*read("FREQ=DAILY;UNTIL=20240603T040000Z", "2024-06-01", newYork), "2024-06-01", 9),
            "2024-06-02 2024-06-03 ");
}

TEST(RecurrenceRuleTest, RulesThatOnlyRepeatTheStartAreNone) {
  for (const char* const rule :
       {"FREQ=DAILY;UNTIL=19000101", "FREQ=DAILY;COUNT=1", "FREQ=HOURLY",
        "FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=30;COUNT=7",
        // libical would look for these for minutes.
        "RSCALE=HEBREW;FREQ=SECONDLY;BYMONTH=1", "RSCALE=CHINESE;FREQ=YEARLY;BYDAY=MO,TU;BYSETPOS=300",
        "RSCALE=CHINESE;FREQ=YEARLY;BYMONTH=1L;BYMONTHDAY=1"}) {
    EXPECT_FALSE(read(rule, "2024-03-01")) << rule;
  }
}

TEST(RecurrenceRuleTest, TheNameOfACalendarIsFreed) {
  const std::string text = read("RSCALE=HEBREW;FREQ=YEARLY", "2024-03-01")->text();
  EXPECT_NE(text.find("RSCALE=HEBREW"), std::string::npos);
  const auto load = [&text] { static_cast<void>(RecurrenceRule::fromStored(text, parseTime("2024-03-01"))); };
  load();
  const std::size_t before = heapInUse();
  for (int i = 0; i < 100; ++i) load();
  EXPECT_EQ(heapInUse(), before);
}

}  // namespace
}  // namespace phone
