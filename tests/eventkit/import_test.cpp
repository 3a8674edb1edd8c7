// Importing: all or nothing, again and again, from files and folders, and what a broken file is answered
// with.
#include "phone/calendarstore/database/event_changes.h"
#include "phone/calendarstore/ics/calendar_import.h"
#include "tests/eventkit/core_fixture.h"

namespace phone {
namespace {

const EventZone& utc() {
  static const EventZone zone = EventZone::utc();
  return zone;
}

class ImportTest : public CoreTest {
 protected:
  std::vector<EventOccurrence> everything() {
    std::vector<std::int64_t> rows;
    for (const CalendarRecord& calendar : database().calendars()) rows.push_back(calendar.id);
    return occurrencesInRange(
               database(), {parseTime("1900-01-01 00:00:00"), parseTime("2100-01-01 00:00:00")}, rows, utc())
        .occurrences;
  }
  /// The titles of all occurrences, in order, each after a space.
  std::string titles() {
    std::string all;
    for (const EventOccurrence& event : everything()) all += " " + event.title;
    return all;
  }
  ImportedCalendar importOne(const std::filesystem::path& path, const ImportOptions& options = {}) {
    return importCalendars(database(), {path}, options).calendars.at(0);
  }
  std::string failure(const std::vector<std::filesystem::path>& paths) {
    try {
      importCalendars(database(), paths);
    } catch (const std::runtime_error& error) {
      return error.what();
    }
    return "";
  }
};

TEST_F(ImportTest, BrokenFilesAreReportedWithLineAndReasonAndChangeNothing) {
  const std::string head = "BEGIN:VCALENDAR\nVERSION:2.0\n";
  const std::string good = eventOf("good", "20240101T100000Z", "good");
  const std::string nested = [] {
    std::string text;
    for (int i = 0; i < 500; ++i) text += "BEGIN:X-NEST\n";
    return text;
  }();
  const struct {
    const char* name;
    std::string content;
    const char* report;
  } files[] = {
      {"empty", "", "empty.ics: the file is empty"},
      {"web", "<!DOCTYPE html>\n<html></html>\n", "web.ics:1: this is no calendar file"},
      {"binary",
       std::string("\x7f"
                   "ELF\0\0\0",
                   7),
       "binary.ics:1: there is a zero byte"},
      {"utf16",
       std::string("\xff\xfe"
                   "B\0E\0G\0",
                   8),
       "utf16.ics:1: there is a zero byte"},
      {"truncated", head + good + "BEGIN:VEVENT\nUID:x\nDTSTART:2024",
       "truncated.ics:11: the file ends before"},
      {"unclosed", head + good, "unclosed.ics:8: the file ends before the END of VCALENDAR"},
      {"crossed", head + good + "BEGIN:VEVENT\nEND:VCALENDAR\n",
       "crossed.ics:10: END:VCALENDAR comes before"},
      {"deep", head + good + nested, "deep.ics:508: the file ends before the END of X-NEST"},
      {"trailing", calendarOf(good) + "garbage\n", "trailing.ics:10: there is text after the end"},
      {"no-property", calendarOf(good + "BEGIN:VEVENT\nwhat is this\nEND:VEVENT\n"),
       "no-property.ics:10: the line is no property"},
      {"no-start", calendarOf(good + "BEGIN:VEVENT\nUID:x\nEND:VEVENT\n"),
       "no-start.ics:9: the event has no start"},
      {"bad-start", calendarOf(good + eventOf("x", "tomorrow", "x")),
       "bad-start.ics:11: DTSTART cannot be read"},
      {"no-date", calendarOf(good + eventOf("x", "20240231T100000", "x")),
       "no-date.ics:11: DTSTART is no date that exists"},
      {"bad-rule", calendarOf(good + eventOf("x", "20240101T100000", "x", "RRULE:FREQ=SOMETIMES\n")),
       "bad-rule.ics:14: RRULE cannot be read: FREQ=SOMETIMES"},
      {"no-interval",
       calendarOf(good + eventOf("x", "20240101T100000", "x", "RRULE:FREQ=DAILY;INTERVAL=0\n")),
       "no-interval.ics:14: RRULE cannot be read"},
      {"bad-exception",
       calendarOf(good + eventOf("x", "20240101T100000", "x", "EXDATE:20240101T100000,then\n")),
       "bad-exception.ics:14: EXDATE cannot be read: then"},
  };
  importOne(write("before.ics", calendarOf(eventOf("good", "20230101T100000Z", "before"))));
  for (const auto& file : files) {
    const auto path = write(std::string(file.name) + ".ics", file.content);
    const std::string reason = failure({folder_ / "before.ics", path});
    EXPECT_NE(reason.find(file.report), std::string::npos) << file.name << " was answered with: " << reason;
    EXPECT_EQ(titles(), " before") << file.name;
    EXPECT_EQ(database().calendars().size(), 1u) << file.name;
  }
  EXPECT_NE(failure({folder_ / "missing.ics"}).find("missing.ics: there is no such file"), std::string::npos);
  EXPECT_NE(failure({folder_ / "folder"}).find("no such file"), std::string::npos);
}

TEST_F(ImportTest, AFileThatIsNamedTwiceCountsOnce) {
  write("work/a.ics", calendarOf(eventOf("a", "20240101T100000Z", "a")));
  write("work/b.ics", calendarOf(eventOf("b", "20240102T100000Z", "b")));
  std::filesystem::create_directory_symlink(folder_ / "work", folder_ / "again");
  const ImportResult result = importCalendars(
      database(), {folder_ / "work", folder_ / "work/", folder_ / "again", folder_ / "work/../work/b.ics"});
  ASSERT_EQ(result.calendars.size(), 1u);
  EXPECT_EQ(result.calendars[0].added, 2u);
  EXPECT_EQ(result.calendars[0].unchanged, 0u);
}

TEST_F(ImportTest, TheSameFileAgainUpdatesInsteadOfDoubling) {
  const auto twoEvents = [](const std::string& title, const std::string& lines) {
    return calendarOf(
        eventOf("a", "20240101T100000Z", title, lines) +
        eventOf("b", "20240102T100000Z", "b", "RRULE:FREQ=DAILY;COUNT=2\nEXDATE:20240103T100000Z\n"));
  };
  ImportedCalendar counts = importOne(write("work.ics", twoEvents("first", "")));
  EXPECT_EQ(counts.added, 2u);
  const std::string identifier = counts.calendar.identifier;

  counts = importOne(folder_ / "work.ics");
  EXPECT_EQ(counts.unchanged, 2u);
  EXPECT_EQ(counts.calendar.identifier, identifier);

  counts = importOne(write("work.ics", twoEvents("second", "LAST-MODIFIED:20240105T000000Z\n")));
  EXPECT_EQ(counts.updated, 1u);
  EXPECT_EQ(titles(), " second b");

  counts = importOne(write("work.ics", twoEvents("stale", "LAST-MODIFIED:20240104T000000Z\n")));
  EXPECT_EQ(counts.older, 1u);
  EXPECT_EQ(titles(), " second b");

  // An event that moves leaves no trace at its old time.
  importOne(write("work.ics", calendarOf(eventOf("b", "20250102T100000Z", "b"))));
  const auto all = everything();
  ASSERT_EQ(all.size(), 2u);
  EXPECT_EQ(all[1].start, parseTime("2025-01-02 10:00:00"));
}

TEST_F(ImportTest, EventsThatAreInTheFileNoLongerGoOnlyWhenAsked) {
  importOne(
      write("work.ics", calendarOf(eventOf("a", "20240101T100000Z", "a") +
                                   eventOf("b", "20240102T100000Z", "b", "RRULE:FREQ=DAILY;COUNT=2\n"))));
  const EditContext context{database(), utc(), 0};
  addEvent(context, {.calendar = 1,
                     .title = "own",
                     .start = parseTime("2024-02-01 00:00:00"),
                     .end = parseTime("2024-02-02 00:00:00")});
  write("work.ics", calendarOf(eventOf("a", "20240101T100000Z", "a")));
  EXPECT_EQ(importOne(folder_ / "work.ics").removed, 0u);
  EXPECT_EQ(titles(), " a b b own");
  EXPECT_EQ(importOne(folder_ / "work.ics", {.removeMissing = true}).removed, 1u);
  EXPECT_EQ(titles(), " a own");
}

TEST_F(ImportTest, AnEditOnThePhoneIsNotUndoneByTheFileThatItCameFrom) {
  importOne(write("work.ics", calendarOf(eventOf("a", "20240101T100000Z", "file"))));
  const EventOccurrence event = everything().at(0);
  changeEvent({database(), utc(), parseTime("2024-01-01 00:00:00")}, event,
              {.calendar = event.calendar, .title = "phone", .start = event.start, .end = event.end},
              EditSpan::kThisOccurrence);
  EXPECT_EQ(importOne(folder_ / "work.ics").older, 1u);
  EXPECT_EQ(titles(), " phone");
}

TEST_F(ImportTest, EventsWithoutUidKeepTheirIdentity) {
  const std::string event = "BEGIN:VEVENT\nDTSTART:20240101T100000Z\nSUMMARY:";
  const std::string content = calendarOf(event + "a\nEND:VEVENT\n" + event + "b\nEND:VEVENT\n");
  EXPECT_EQ(importOne(write("work.ics", content)).added, 2u);
  EXPECT_EQ(importOne(folder_ / "work.ics").unchanged, 2u);
}

TEST_F(ImportTest, ACalendarWithoutEventsIsACalendar) {
  const ImportedCalendar empty =
      importOne(write("empty.ics", calendarOf("X-WR-CALNAME:Nothing yet\nCOLOR:steelblue\n")));
  EXPECT_EQ(empty.calendar.title, "Nothing yet");
  EXPECT_EQ(empty.calendar.color, 0x4682b4ffu);
  EXPECT_EQ(empty.added, 0u);
  EXPECT_EQ(database().calendars().size(), 1u);
  EXPECT_EQ(titles(), "");
  importOne(write("tasks.ics", calendarOf("BEGIN:VTODO\nUID:1\nSUMMARY:task\nEND:VTODO\n")));
  EXPECT_EQ(database().calendars().at(1).title, "tasks") << "it says no name, so it has its file's";
  EXPECT_EQ(titles(), "");
}

TEST_F(ImportTest, AFolderOfEventsIsOneCalendar) {
  write("dav/private/displayname", "Privat & Familie\n");
  write("dav/private/color", "#f0a\n");
  write("dav/private/1.ics",
        calendarOf("X-WR-CALNAME:Elsewhere\n" + eventOf("1", "20240101T100000Z", "one")));
  write("dav/private/2.ICS", calendarOf(eventOf("2", "20240102T100000Z", "two")));
  write("dav/private/.hidden.ics", "no calendar");
  write("dav/private/notes.txt", "no calendar");
  write("dav/sports/1.ics", calendarOf(eventOf("1", "20240103T100000Z", "three")));
  write("dav/empty/nothing", "");
  const ImportResult result = importCalendars(database(), {folder_ / "dav/"});
  ASSERT_EQ(result.calendars.size(), 2u);
  EXPECT_EQ(result.calendars[0].calendar.title, "Privat & Familie");
  EXPECT_EQ(result.calendars[0].calendar.color, 0xff00aaffu);
  EXPECT_EQ(result.calendars[0].added, 2u);
  EXPECT_EQ(result.calendars[1].calendar.title, "sports");
  EXPECT_EQ(titles(), " one two three");
  EXPECT_NE(failure({folder_ / "dav/empty"}).find("no calendar file"), std::string::npos);

  // Whole calendars that lie in one folder stay apart, as they name themselves.
  write("whole/a.ics",
        calendarOf("X-WR-CALNAME:A\nCOLOR:steelblue\n" + eventOf("1", "20240104T100000Z", "four")));
  write("whole/b.ics", calendarOf("X-WR-CALNAME:B\n" + eventOf("1", "20240105T100000Z", "five")));
  const ImportResult whole = importCalendars(database(), {folder_ / "whole"});
  ASSERT_EQ(whole.calendars.size(), 2u);
  EXPECT_EQ(whole.calendars[0].calendar.color, 0x4682b4ffu);
  EXPECT_EQ(whole.calendars[1].calendar.title, "B");
}

TEST_F(ImportTest, ProgressRunsToTheEnd) {
  std::string events;
  for (int i = 0; i < 1200; ++i) events += eventOf("u" + std::to_string(i), "20240101T100000Z", "e");
  std::uint64_t lastDone = 0;
  std::size_t reports = 0;
  ImportOptions options;
  options.progress = [&](const ImportProgress& progress) {
    EXPECT_GE(progress.bytesDone, lastDone);
    EXPECT_LE(progress.bytesDone, progress.bytesTotal);
    lastDone = progress.bytesDone;
    ++reports;
    EXPECT_EQ(progress.events, std::min<std::size_t>(reports * 500, 1200));
  };
  const auto file = write("work.ics", calendarOf(events));
  importOne(file, options);
  EXPECT_EQ(reports, 3u);
  EXPECT_EQ(lastDone, std::filesystem::file_size(file));
}

}  // namespace
}  // namespace phone
