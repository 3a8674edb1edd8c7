// Events that change one repetition and all later ones (RANGE=THISANDFUTURE), and rules that leave
// repetitions out (EXRULE): imported, searched in one piece and in many, edited on the phone.
#include <ctime>

#include "phone/calendarstore/database/calendar_edit.h"
#include "phone/calendarstore/database/event_changes.h"
#include "phone/calendarstore/database/identifiers.h"
#include "phone/calendarstore/ics/calendar_import.h"
#include "tests/eventkit/core_fixture.h"

namespace phone {
namespace {

/// Seven days at nine in Berlin from 1 March 2024, with further lines.
std::string daily(const std::string& lines = "", const std::string& rule = "FREQ=DAILY;COUNT=7") {
  return "BEGIN:VEVENT\nUID:s\nDTSTART;TZID=Europe/Berlin:20240301T090000\nDURATION:PT1H\nSUMMARY:d\n"
         "LOCATION:Bern\nRRULE:" +
         rule + "\n" + lines + "END:VEVENT\n";
}

/// What changes the repetition of that day, and from it on.
std::string change(const std::string& day, const std::string& start, const std::string& title,
                   const std::string& lines = "", const std::string& range = ";RANGE=THISANDFUTURE") {
  return "BEGIN:VEVENT\nUID:s\nRECURRENCE-ID" + range + ";TZID=Europe/Berlin:" + day +
         "T090000\nDTSTART;TZID=Europe/Berlin:" + start + "\nDURATION:PT30M\nSUMMARY:" + title + "\n" +
         lines + "END:VEVENT\n";
}

std::string single(const std::string& day, const std::string& start, const std::string& title) {
  return change(day, start, title, "", "");
}

class LaterChangesTest : public CoreTest {
 protected:
  const EventZone berlin_ = EventZone::named("Europe/Berlin").value();

  std::vector<EventOccurrence> within(const std::string& from, const std::string& to) {
    return occurrencesInRange(database(), {parseTime(from), parseTime(to)}, {1}, berlin_).occurrences;
  }
  std::string textOf(const EventOccurrence& event) {
    const cctz::civil_second start = civilTime(berlin_.toWall(event.start));
    char text[64];
    std::snprintf(text, sizeof text, " %d.%d/%d:%02d+%d", start.day(), start.month(), start.hour(),
                  start.minute(), static_cast<int>((event.end - event.start) / 60));
    return text + event.title;
  }
  /// Every occurrence of two years, in Berlin's time: " 4.3/9:00+60d" is one of an hour on 4 March. The same
  /// has to come out of many short searches.
  std::string all() {
    std::string whole;
    for (const EventOccurrence& event : within("2024-01-01 00:00:00", "2026-01-01 00:00:00")) {
      whole += textOf(event);
    }
    std::string pieces;
    constexpr Seconds kPiece = 18 * Seconds{3600};
    const Seconds end = parseTime("2024-05-04 00:00:00");
    for (Seconds from = parseTime("2024-02-18 00:00:00"); from < end; from += kPiece) {
      for (const EventOccurrence& event :
           occurrencesInRange(database(), {from, from + kPiece}, {1}, berlin_).occurrences) {
        if (event.start >= from) pieces += textOf(event);
      }
    }
    EXPECT_EQ(whole, pieces);
    return whole;
  }
  void import(const std::string& events) {
    importCalendars(database(), {write("work.ics", calendarOf(events))});
  }
  EventOccurrence at(const std::string& time) {
    const Seconds start = berlin_.toInstant(parseTime(time));
    const auto found = occurrencesInRange(database(), {start, start + 1}, {1}, berlin_).occurrences;
    EXPECT_EQ(found.size(), 1u) << time;
    return found.empty() ? EventOccurrence{} : found.front();
  }
};

TEST_F(LaterChangesTest, TheyReachToTheEndOfTheSeriesOrToTheNextChange) {
  const struct {
    const char* what;
    std::string events;
    const char* expected;
  } calendars[] = {
      {"start, length and title", daily() + change("20240304", "20240304T140000", "n"),
       " 1.3/9:00+60d 2.3/9:00+60d 3.3/9:00+60d 4.3/14:00+30n 5.3/14:00+30n 6.3/14:00+30n 7.3/14:00+30n"},
      {"the change before the series", change("20240306", "20240306T140000", "n") + daily(),
       " 1.3/9:00+60d 2.3/9:00+60d 3.3/9:00+60d 4.3/9:00+60d 5.3/9:00+60d 6.3/14:00+30n 7.3/14:00+30n"},
      {"from the first one on", daily() + change("20240301", "20240301T080000", "n"),
       " 1.3/8:00+30n 2.3/8:00+30n 3.3/8:00+30n 4.3/8:00+30n 5.3/8:00+30n 6.3/8:00+30n 7.3/8:00+30n"},
      {"before the series begins, by more than a week", daily() + change("20240301", "20240220T090000", "n"),
       " 20.2/9:00+30n 21.2/9:00+30n 22.2/9:00+30n 23.2/9:00+30n 24.2/9:00+30n 25.2/9:00+30n 26.2/9:00+30n"},
      {"a later change of one, and one of an earlier one",
       daily() + change("20240304", "20240304T140000", "n") + single("20240306", "20240310T100000", "one") +
           single("20240302", "20240302T110000", "own"),
       " 1.3/9:00+60d 2.3/11:00+30own 3.3/9:00+60d 4.3/14:00+30n 5.3/14:00+30n 7.3/14:00+30n "
       "10.3/10:00+30one"},
      {"a second change of all later ones, in whatever order",
       change("20240306", "20240306T200000", "m") + daily() + change("20240303", "20240303T140000", "n"),
       " 1.3/9:00+60d 2.3/9:00+60d 3.3/14:00+30n 4.3/14:00+30n 5.3/14:00+30n 6.3/20:00+30m 7.3/20:00+30m"},
      {"exceptions name the repetitions as they were",
       daily("EXDATE;TZID=Europe/Berlin:20240302T090000,20240305T090000\n") +
           change("20240304", "20240304T140000", "n"),
       " 1.3/9:00+60d 3.3/9:00+60d 4.3/14:00+30n 6.3/14:00+30n 7.3/14:00+30n"},
      {"the changed one itself can be left out",
       daily("EXDATE;TZID=Europe/Berlin:20240304T090000\n") + change("20240304", "20240304T140000", "n"),
       " 1.3/9:00+60d 2.3/9:00+60d 3.3/9:00+60d 5.3/14:00+30n 6.3/14:00+30n 7.3/14:00+30n"},
      {"the end of the series counts as it was",
       daily("", "FREQ=DAILY;UNTIL=20240305T080000Z") + change("20240304", "20240304T200000", "n"),
       " 1.3/9:00+60d 2.3/9:00+60d 3.3/9:00+60d 4.3/20:00+30n 5.3/20:00+30n"},
      {"dates that no rule makes move along",
       daily("RDATE;TZID=Europe/Berlin:20240302T120000,20240320T120000\n", "FREQ=DAILY;COUNT=3") +
           change("20240303", "20240303T100000", "n"),
       " 1.3/9:00+60d 2.3/9:00+60d 2.3/12:00+60d 3.3/10:00+30n 20.3/13:00+30n"},
      {"called off from there on",
       daily() + change("20240304", "20240304T090000", "n", "STATUS:CANCELLED\n") +
           single("20240306", "20240306T110000", "one"),
       " 1.3/9:00+60d 2.3/9:00+60d 3.3/9:00+60d 6.3/11:00+30one"},
      {"through a change of clocks the wall time stays",
       daily("", "FREQ=WEEKLY;COUNT=6") + change("20240315", "20240315T140000", "n"),
       " 1.3/9:00+60d 8.3/9:00+60d 15.3/14:00+30n 22.3/14:00+30n 29.3/14:00+30n 5.4/14:00+30n"},
      {"to another day of the month",
       daily("", "FREQ=MONTHLY;UNTIL=20240601T000000Z") + change("20240401", "20240402T090000", "n"),
       " 1.3/9:00+60d 2.4/9:00+30n 2.5/9:00+30n"},
      {"without the series it is an event by itself", change("20240304", "20240304T140000", "n"),
       " 4.3/14:00+30n"},
      {"of days",
       "BEGIN:VEVENT\nUID:s\nDTSTART;VALUE=DATE:20240301\nRRULE:FREQ=DAILY;COUNT=4\nSUMMARY:d\nEND:VEVENT\n"
       "BEGIN:VEVENT\nUID:s\nRECURRENCE-ID;RANGE=THISANDFUTURE;VALUE=DATE:20240303\n"
       "DTSTART;VALUE=DATE:20240304\nSUMMARY:n\nEND:VEVENT\n",
       " 1.3/0:00+1439d 2.3/0:00+1439d 4.3/0:00+1439n 5.3/0:00+1439n"},
  };
  for (const auto& calendar : calendars) {
    database_.reset();
    std::filesystem::remove(folder_ / "Calendar.sqlitedb");
    import(calendar.events);
    EXPECT_EQ(all(), calendar.expected) << calendar.what;
    const ImportResult again = importCalendars(database(), {folder_ / "work.ics"});
    EXPECT_EQ(again.calendars.at(0).added + again.calendars.at(0).updated, 0u) << calendar.what;
    EXPECT_EQ(all(), calendar.expected) << calendar.what << ", again";
  }
}

TEST_F(LaterChangesTest, AChangeIntoAnotherZoneKeepsThatZonesTimes) {
  // New York puts its clocks forward on 10 March, Berlin on 31 March.
  import(daily("", "FREQ=WEEKLY;COUNT=6") +
         "BEGIN:VEVENT\nUID:s\nRECURRENCE-ID;RANGE=THISANDFUTURE;TZID=Europe/Berlin:20240308T090000\n"
         "DTSTART;TZID=America/New_York:20240308T090000\nDURATION:PT30M\nSUMMARY:n\nEND:VEVENT\n");
  EXPECT_EQ(all(), " 1.3/9:00+60d 8.3/15:00+30n 15.3/14:00+30n 22.3/14:00+30n 29.3/14:00+30n 5.4/15:00+30n");
}

TEST_F(LaterChangesTest, FilesThatSayOtherwiseLaterAreFollowed) {
  const std::string before = " 1.3/9:00+60d 2.3/9:00+60d 3.3/9:00+60d";
  import(daily("", "FREQ=DAILY;COUNT=5") + change("20240304", "20240304T140000", "n"));
  EXPECT_EQ(all(), before + " 4.3/14:00+30n 5.3/14:00+30n");
  import(daily("", "FREQ=DAILY;COUNT=5") + single("20240304", "20240304T140000", "n"));
  EXPECT_EQ(all(), before + " 4.3/14:00+30n 5.3/9:00+60d") << "one repetition only";
  import(daily("", "FREQ=DAILY;COUNT=6") + change("20240304", "20240304T160000", "m"));
  EXPECT_EQ(all(), before + " 4.3/16:00+30m 5.3/16:00+30m 6.3/16:00+30m") << "all again, and a longer series";
  importCalendars(database(), {write("work.ics", calendarOf(daily("", "FREQ=DAILY;COUNT=6")))},
                  {.removeMissing = true});
  EXPECT_EQ(all(), before + " 4.3/9:00+60d 5.3/9:00+60d 6.3/9:00+60d") << "no change any more";
  import(change("20240302", "20240302T160000", "m") + change("20240303", "20240303T170000", "n"));
  importCalendars(database(), {write("work.ics", calendarOf(eventOf("other", "20240401T100000", "o")))},
                  {.removeMissing = true});
  EXPECT_EQ(all(), " 1.4/10:00+60o") << "nothing stays of a series that goes";
}

TEST_F(LaterChangesTest, RulesLeaveRepetitionsOut) {
  const struct {
    std::string events;
    const char* expected;
  } calendars[] = {
      {daily("EXRULE:FREQ=DAILY;INTERVAL=3\n"), " 2.3/9:00+60d 3.3/9:00+60d 5.3/9:00+60d 6.3/9:00+60d"},
      {daily("EXRULE:FREQ=WEEKLY;BYDAY=SA,SU\n"),
       " 1.3/9:00+60d 4.3/9:00+60d 5.3/9:00+60d 6.3/9:00+60d 7.3/9:00+60d"},
      {daily("EXRULE:FREQ=DAILY;COUNT=2\nEXRULE:FREQ=DAILY;INTERVAL=2;UNTIL=20240305T080000Z\n"),
       " 4.3/9:00+60d 6.3/9:00+60d 7.3/9:00+60d"},
      {daily("EXRULE:FREQ=DAILY;BYHOUR=10\n", "FREQ=DAILY;COUNT=2"), " 1.3/9:00+60d 2.3/9:00+60d"},
      {daily("EXRULE:FREQ=DAILY;BYDAY=MO\nRDATE;TZID=Europe/Berlin:20240311T090000,20240312T090000\n",
             "FREQ=DAILY;COUNT=4"),
       " 1.3/9:00+60d 2.3/9:00+60d 3.3/9:00+60d 12.3/9:00+60d"},
      {daily("EXRULE:FREQ=DAILY;INTERVAL=3\n") + change("20240303", "20240303T140000", "n") +
           single("20240304", "20240304T110000", "one"),
       " 2.3/9:00+60d 3.3/14:00+30n 4.3/11:00+30one 5.3/14:00+30n 6.3/14:00+30n"},
  };
  for (const auto& calendar : calendars) {
    database_.reset();
    std::filesystem::remove(folder_ / "Calendar.sqlitedb");
    import(calendar.events);
    EXPECT_EQ(all(), calendar.expected);
    EXPECT_EQ(importCalendars(database(), {folder_ / "work.ics"}).calendars.at(0).updated, 0u);
  }
  EXPECT_THROW(import(daily("EXRULE:FREQ=SOMETIMES\n")), IcsError);
}

TEST_F(LaterChangesTest, TheyAreEditedOneByOneAndFromOneOn) {
  const std::string head = " 1.3/9:00+60d 2.3/9:00+60d";
  import(daily("", "FREQ=DAILY;COUNT=6") + change("20240303", "20240303T140000", "n"));
  ASSERT_EQ(all(), head + " 3.3/14:00+30n 4.3/14:00+30n 5.3/14:00+30n 6.3/14:00+30n");
  const EditContext context{database(), berlin_, parseTime("2024-02-01 00:00:00")};
  const auto edit = [&](const std::string& time, const std::string& title, EditSpan span) {
    const EventOccurrence event = at(time);
    return changeEvent(context, event,
                       {.calendar = 1, .title = title, .start = event.start + 3600, .end = event.end + 3600},
                       span);
  };
  edit("2024-03-05 14:00:00", "one", EditSpan::kThisOccurrence);
  EXPECT_EQ(all(), head + " 3.3/14:00+30n 4.3/14:00+30n 5.3/15:00+30one 6.3/14:00+30n");
  edit("2024-03-03 14:00:00", "first", EditSpan::kThisOccurrence);
  EXPECT_EQ(all(), head + " 3.3/15:00+30first 4.3/14:00+30n 5.3/15:00+30one 6.3/14:00+30n");
  edit("2024-03-04 14:00:00", "m", EditSpan::kFutureOccurrences);
  EXPECT_EQ(all(), head + " 3.3/15:00+30first 4.3/15:00+30m 5.3/15:00+30one 6.3/15:00+30m");
  const EventOccurrence changing = edit("2024-03-04 15:00:00", "k", EditSpan::kFutureOccurrences);
  EXPECT_EQ(all(), head + " 3.3/15:00+30first 4.3/16:00+30k 5.3/15:00+30one 6.3/16:00+30k");
  EXPECT_NE(changing.series, 0) << "so an editor that was opened by its identifier edits it, too";
  deleteEvent(context, at("2024-03-04 16:00:00"), EditSpan::kThisOccurrence);
  EXPECT_EQ(all(), head + " 3.3/15:00+30first 5.3/15:00+30one 6.3/16:00+30k");
  deleteEvent(context, at("2024-03-06 16:00:00"), EditSpan::kFutureOccurrences);
  EXPECT_EQ(all(), head + " 3.3/15:00+30first 5.3/15:00+30one");
}

TEST_F(LaterChangesTest, ASeriesThatIsEditedTakesThemAlong) {
  import(daily("EXRULE:FREQ=DAILY;INTERVAL=5\n", "FREQ=DAILY;COUNT=7") +
         change("20240305", "20240305T140000", "n"));
  ASSERT_EQ(all(), " 2.3/9:00+60d 3.3/9:00+60d 4.3/9:00+60d 5.3/14:00+30n 7.3/14:00+30n");
  const EditContext context{database(), berlin_, parseTime("2024-02-01 00:00:00")};
  const EventOccurrence third = at("2024-03-03 09:00:00");
  changeEvent(context, third,
              {.calendar = 1, .title = "t", .start = third.start + 3600, .end = third.end + 3600},
              EditSpan::kFutureOccurrences);
  EXPECT_EQ(all(), " 2.3/9:00+60d 3.3/10:00+60t 4.3/10:00+60t 5.3/14:00+30n 7.3/14:00+30n")
      << "the new series keeps both the change and the rule that leaves the sixth out";
  deleteEvent(context, at("2024-03-03 10:00:00"), EditSpan::kFutureOccurrences);
  EXPECT_EQ(all(), " 2.3/9:00+60d");
}

TEST_F(LaterChangesTest, NothingOfACalendarThatIsRemovedGoesOverToAnother) {
  import(daily("EXRULE:FREQ=DAILY;INTERVAL=2\n") + change("20240304", "20240304T140000", "n"));
  removeCalendars(database(), database().calendars());
  import(daily());
  EXPECT_EQ(all(),
            " 1.3/9:00+60d 2.3/9:00+60d 3.3/9:00+60d 4.3/9:00+60d 5.3/9:00+60d 6.3/9:00+60d 7.3/9:00+60d");
}

TEST_F(LaterChangesTest, EachIsFoundByItsOwnIdentifier) {
  import(daily() + change("20240304", "20240304T140000", "n"));
  const EditContext context{database(), berlin_, parseTime("2024-02-01 00:00:00")};
  const EventOccurrence changing = at("2024-03-04 14:00:00");
  changeEvent(context, changing,
              {.calendar = 1, .title = "one", .start = changing.start, .end = changing.end},
              EditSpan::kThisOccurrence);
  for (const char* const time : {"2024-03-03 09:00:00", "2024-03-04 14:00:00", "2024-03-06 14:00:00"}) {
    const EventOccurrence event = at(time);
    const std::string identifier =
        eventIdentifier(database().calendars().at(0).identifier, event.uid, event.replaces);
    const auto found = findByIdentifier(database(), identifier, berlin_);
    ASSERT_TRUE(found) << identifier;
    EXPECT_EQ(found->title, event.title) << identifier;
  }
}

TEST_F(LaterChangesTest, AThousandChangesOfOneSeriesStayQuick) {
  std::string events = daily("", "FREQ=HOURLY");
  for (int i = 0; i < 20'000; ++i) {
    char time[32];
    const auto at = civilTime(parseTime("2024-03-01 09:00:00") + i * Seconds{3600});
    std::snprintf(time, sizeof time, "%04d%02d%02dT%02d0000Z", static_cast<int>(at.year()), at.month(),
                  at.day(), at.hour());
    events += std::string("BEGIN:VEVENT\nUID:s\nRECURRENCE-ID;RANGE=THISANDFUTURE:") + time +
              "\nDTSTART:" + time + "\nSUMMARY:" + std::to_string(i) + "\nEND:VEVENT\n";
  }
  const std::clock_t begin = std::clock();
  import(events);
  EXPECT_EQ(within("2024-04-01 00:00:00", "2024-04-02 00:00:00").size(), 24u);
  // Far above what it takes, far below what working them out anew for each would take.
  EXPECT_LT(static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC, 10);
}

}  // namespace
}  // namespace phone
