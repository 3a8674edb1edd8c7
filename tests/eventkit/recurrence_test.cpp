// The shortcuts around libical's recurrences, held against libical itself walking through every occurrence:
// the filter by days may pass too much but nothing too little, and searches from the middle of a series find
// what a walk from its start finds.
#include <gtest/gtest.h>

#include "phone/eventkit/day_filter.h"
#include "phone/eventkit/ical_owned.h"
#include "phone/eventkit/recurrence_rule.h"
#include "phone/eventkit/subday_rule.h"
#include "tests/eventkit/core_fixture.h"

namespace phone {
namespace {

constexpr const char* kStarts[] = {"2015-01-07 09:30:10", "2016-02-29 23:30:00", "2014-12-31 00:00:00"};

std::vector<Seconds> walk(const std::string& rule, Seconds start, Seconds end) {
  std::vector<Seconds> all;
  const OwnedIterator iterator(
      icalrecur_iterator_new(icalrecurrencetype_from_string(rule.c_str()), icalTime(start)));
  while (iterator != nullptr) {
    const icaltimetype next = icalrecur_iterator_next(iterator.get());
    if (icaltime_is_null_time(next) != 0 || wallSeconds(next) > end) break;
    all.push_back(wallSeconds(next));
  }
  return all;
}

std::string show(const std::vector<Seconds>& times) {
  std::string text;
  for (const Seconds time : times) text += showTime(time) + "\n";
  return text;
}

/// Compares searches of a window, at many places, with the walk.
void compareWindows(const std::string& ruleText, Seconds start, Seconds end, Seconds window, Seconds stride) {
  const icalrecurrencetype parsed = icalrecurrencetype_from_string(ruleText.c_str());
  ASSERT_NE(parsed.freq, ICAL_NO_RECURRENCE) << ruleText;
  const std::vector<Seconds> all = walk(ruleText, start, end);
  ASSERT_FALSE(all.empty()) << ruleText;
  const DayFilter filter(parsed, start);
  for (const Seconds time : all)
    ASSERT_TRUE(filter.mayFallOn(dayOf(time))) << ruleText << " " << showTime(time);
  const RecurrenceRule rule = RecurrenceRule::fromStored(ruleText, start);
  for (Seconds from = start - window; from + window < end; from += stride) {
    std::vector<Seconds> expected;
    for (const Seconds time : all) {
      if (time >= from && time <= from + window) expected.push_back(time);
    }
    std::vector<Seconds> found;
    rule.appendStarts(from, from + window, found);
    ASSERT_EQ(show(found), show(expected))
        << ruleText << " from " << showTime(start) << ", searched from " << showTime(from);
  }
}

TEST(RecurrenceTest, ASearchFindsWhatAWalkFinds) {
  for (const char* const start : kStarts) {
    for (const char* const rule : {"FREQ=WEEKLY",
                                   "FREQ=WEEKLY;BYDAY=MO,WE",
                                   "FREQ=WEEKLY;INTERVAL=2;BYDAY=TU,SU;WKST=SU",
                                   "FREQ=WEEKLY;INTERVAL=2;BYDAY=TU,SU;WKST=MO",
                                   "FREQ=WEEKLY;INTERVAL=3",
                                   "FREQ=YEARLY",
                                   "FREQ=YEARLY;INTERVAL=4",
                                   "FREQ=DAILY;INTERVAL=7",
                                   "FREQ=DAILY;BYMONTH=1",
                                   "FREQ=DAILY;BYDAY=SA",
                                   "FREQ=MONTHLY",
                                   "FREQ=MONTHLY;BYDAY=-1FR",
                                   "FREQ=MONTHLY;INTERVAL=5;BYMONTHDAY=-2",
                                   "FREQ=MONTHLY;BYMONTHDAY=31",
                                   "FREQ=MONTHLY;BYDAY=FR;BYMONTHDAY=13",
                                   "FREQ=MONTHLY;BYDAY=MO,TU,WE,TH,FR;BYSETPOS=-1",
                                   "FREQ=MONTHLY;INTERVAL=2;BYDAY=1SU,-1SU",
                                   "FREQ=YEARLY;BYMONTH=3;BYDAY=-1SU",
                                   "FREQ=YEARLY;BYWEEKNO=20;BYDAY=MO",
                                   "FREQ=YEARLY;BYWEEKNO=30;BYDAY=SU,WE",
                                   "FREQ=YEARLY;INTERVAL=3;BYYEARDAY=1,100,-1",
                                   "FREQ=YEARLY;BYDAY=20MO",
                                   "FREQ=YEARLY;BYMONTHDAY=15",
                                   "FREQ=DAILY;INTERVAL=2;BYHOUR=8,20",
                                   "FREQ=YEARLY;BYMONTH=2;BYMONTHDAY=29",
                                   "FREQ=YEARLY;INTERVAL=4;BYMONTH=11;BYDAY=TU;BYMONTHDAY=2,3,4,5,6,7,8"}) {
      const Seconds begin = parseTime(start);
      compareWindows(rule, begin, begin + 9L * 365 * kSecondsPerDay, 40L * 3600, 23 * kSecondsPerDay + 5000);
    }
  }
}

TEST(RecurrenceTest, RulesWithinADayAreStillTheLibrarysRules) {
  for (const char* const start : kStarts) {
    for (const char* const rule :
         {"FREQ=HOURLY", "FREQ=HOURLY;INTERVAL=5", "FREQ=HOURLY;BYDAY=MO;BYHOUR=9,10",
          "FREQ=HOURLY;BYMINUTE=0,20,40", "FREQ=HOURLY;BYMONTH=1,2;INTERVAL=7", "FREQ=HOURLY;BYMONTHDAY=7,29",
          "FREQ=MINUTELY;INTERVAL=90", "FREQ=MINUTELY;INTERVAL=20;BYHOUR=9,10",
          "FREQ=MINUTELY;BYSECOND=5,50;INTERVAL=600", "FREQ=SECONDLY;INTERVAL=10000",
          "FREQ=SECONDLY;INTERVAL=3700;BYDAY=SA,SU"}) {
      const Seconds begin = parseTime(start);
      compareWindows(rule, begin, begin + 62 * kSecondsPerDay, 9L * 3600, 2 * kSecondsPerDay + 5000);
    }
  }
}

TEST(RecurrenceTest, WhatTheLibraryMakesNothingOfWorksAllTheSame) {
  const Seconds start = parseTime("2024-01-31 10:00:00");  // A Wednesday in week 5.
  const struct {
    const char* rule;
    const char* next;
  } rules[] = {{"FREQ=YEARLY;BYWEEKNO=7", "2024-02-14 10:00:00"},
               {"FREQ=HOURLY;INTERVAL=14;BYMONTHDAY=-1", "2024-02-29 00:00:00"},
               {"FREQ=HOURLY;INTERVAL=3;BYHOUR=4", "2024-02-01 04:00:00"},
               {"FREQ=WEEKLY;BYDAY=MO,WE,FR;BYSETPOS=-1", "2024-02-02 10:00:00"},
               {"FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,WE,FR;BYSETPOS=1", "2024-02-12 10:00:00"},
               {"FREQ=DAILY;INTERVAL=2;BYHOUR=8,12,20;BYSETPOS=-2", "2024-02-02 12:00:00"},
               {"FREQ=DAILY;BYHOUR=8,12,20;BYSETPOS=1;COUNT=3", "2024-02-01 08:00:00"}};
  for (const auto& rule : rules) {
    const auto read = RecurrenceRule::fromFile(icalrecurrencetype_from_string(rule.rule), start, nullptr);
    ASSERT_TRUE(read) << rule.rule;
    std::vector<Seconds> starts;
    read->appendStarts(start + kSecondsPerDay / 2, start + 100 * kSecondsPerDay, starts);
    ASSERT_FALSE(starts.empty()) << rule.rule;
    EXPECT_EQ(showTime(starts.front()), rule.next) << rule.rule;
  }
}

TEST(RecurrenceTest, ACountBecomesAnEnd) {
  const Seconds start = parseTime("2024-03-01 10:00:00");  // A Friday.
  const struct {
    const char* rule;
    const char* last;
  } rules[] = {{"FREQ=DAILY;COUNT=10", "2024-03-10 10:00:00"},
               {"FREQ=WEEKLY;BYDAY=FR;COUNT=2", "2024-03-08 10:00:00"},
               // The start is the first of the three.
               {"FREQ=WEEKLY;BYDAY=MO;COUNT=3", "2024-03-11 10:00:00"},
               {"FREQ=MINUTELY;INTERVAL=7;COUNT=3", "2024-03-01 10:14:00"}};
  for (const auto& rule : rules) {
    const auto read = RecurrenceRule::fromFile(icalrecurrencetype_from_string(rule.rule), start, nullptr);
    ASSERT_TRUE(read) << rule.rule;
    EXPECT_EQ(showTime(read->lastStart()), rule.last) << rule.rule;
    EXPECT_EQ(read->text().find("COUNT"), std::string::npos) << read->text();
  }
}

}  // namespace
}  // namespace phone
