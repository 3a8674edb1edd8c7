// Calendars that are broken here and there, or hold what the phone has no place for: what is taken of them,
// and what is said of the rest.
#include "phone/calendarstore/database/occurrence_query.h"
#include "phone/calendarstore/ics/calendar_import.h"
#include "tests/eventkit/core_fixture.h"

namespace phone {
namespace {

class BrokenCalendarTest : public CoreTest {
 protected:
  ImportResult import(const std::vector<std::filesystem::path>& paths) {
    return importCalendars(database(), paths, {.skipBroken = true});
  }
  std::string titles() {
    std::vector<std::int64_t> rows;
    for (const CalendarRecord& calendar : database().calendars()) rows.push_back(calendar.id);
    std::string all;
    for (const EventOccurrence& event :
         occurrencesInRange(database(), {parseTime("2024-01-01 00:00:00"), parseTime("2025-01-01 00:00:00")},
                            rows, EventZone::utc())
             .occurrences) {
      all += " " + event.title;
    }
    return all;
  }
};

/// An event on that day of January, its END left to the caller.
std::string begun(int day, const std::string& title, const std::string& lines = "") {
  return "BEGIN:VEVENT\nUID:" + title + "\nSUMMARY:" + title + "\nDTSTART:2024010" + std::to_string(day) +
         "T100000Z\n" + lines;
}
std::string event(int day, const std::string& title, const std::string& lines = "") {
  return begun(day, title, lines) + "END:VEVENT\n";
}

TEST_F(BrokenCalendarTest, WhatCanBeReadIsTakenAndTheRestIsNamed) {
  const struct {
    const char* name;
    std::string content;
    const char* titles;
    std::vector<std::string> broken;
  } files[] = {
      {"whole", calendarOf(event(1, "a") + event(2, "b")), " a b", {}},
      {"bad-start",
       calendarOf(event(1, "a") + "BEGIN:VEVENT\nUID:x\nSUMMARY:x\\, y\nDTSTART:tomorrow\nEND:VEVENT\n" +
                  event(2, "b")),
       " a b",
       {":11: DTSTART cannot be read: tomorrow (event \"x, y\")"}},
      {"bad-rule", calendarOf(event(1, "a", "RRULE:FREQ=SOMETIMES\n") + event(2, "b")), " b", {":7: RRULE"}},
      {"bad-line-of-a-text",
       calendarOf(event(1, "a", "DESCRIPTION:one\ntwo three\nfour\n") + event(2, "b")),
       " a b",
       {":8: the line is no property", ":9: the line is no property"}},
      {"bad-line-of-dates",
       calendarOf(event(1, "a", "RDATE:20240103T100000Z,\n20240104T100000Z\n") + event(2, "b")),
       " b",
       {":8: the line is no property of the form NAME:VALUE; it may be a part of the date before it (event "
        "\"a\")"}},
      {"no-end",
       calendarOf(begun(1, "a") + event(2, "b")),
       " b",
       {":7: BEGIN:VEVENT comes before the END of VEVENT"}},
      {"no-end-of-the-last",
       calendarOf(event(1, "a") + begun(2, "b")),
       " a",
       {":12: END:VCALENDAR comes before the END of VEVENT, which begins in line 8 (event \"b\")"}},
      {"no-end-of-an-alarm",
       calendarOf(event(1, "a", "BEGIN:VALARM\nTRIGGER:-PT5M\n") + event(2, "b")),
       " a b",
       {":9: END:VEVENT comes before the END of VALARM"}},
      {"an-end-too-many", calendarOf("END:VEVENT\n" + event(1, "a")), " a", {":3: END:VEVENT comes before"}},
      {"cut-off",
       "BEGIN:VCALENDAR\n" + event(1, "a") + begun(2, "b"),
       " a",
       {":10: the file ends before the END of VEVENT, which begins in line 7 (event \"b\")"}},
      {"no-end-of-the-calendar",
       "BEGIN:VCALENDAR\nVERSION:2.0\n" + event(1, "a"),
       " a",
       {":7: the file ends before the END of VCALENDAR, which begins in line 1"}},
      {"text-behind",
       calendarOf(event(1, "a")) + "garbage\nmore\n" + calendarOf(event(2, "b")),
       " a b",
       {":9: there is text after the end"}},
      {"zero-byte",
       "BEGIN:VCALENDAR\n" + event(1, "a") + std::string("\n\nX:\0\n", 6) + event(2, "b"),
       " a",
       {":9: there is a zero byte here, so this is no calendar file in UTF-8; save it as UTF-8 text; what "
        "follows "
        "in the file is lost"}},
      {"web-page", "<!DOCTYPE html>\n", "", {":1: this is no calendar file"}},
      {"empty", "", "", {": the file is empty"}},
  };
  for (const auto& file : files) {
    database_.reset();
    std::filesystem::remove(folder_ / "Calendar.sqlitedb");
    const std::string name = std::string(file.name) + ".ics";
    const ImportResult result = import({write(name, file.content)});
    EXPECT_EQ(titles(), file.titles) << file.name;
    EXPECT_EQ(result.brokenCount, file.broken.size()) << file.name;
    ASSERT_EQ(result.broken.size(), file.broken.size())
        << file.name << ": " << testing::PrintToString(result.broken);
    for (std::size_t i = 0; i < file.broken.size(); ++i) {
      EXPECT_NE(result.broken[i].find(name + file.broken[i]), std::string::npos)
          << file.name << " said: " << result.broken[i];
    }
    if (!file.broken.empty()) {
      EXPECT_THROW(importCalendars(database(), {folder_ / name}), IcsError) << file.name;
    }
  }
}

TEST_F(BrokenCalendarTest, AFileThatCannotBeReadDoesNotKeepTheOthersOut) {
  write("work/a.ics", calendarOf(event(1, "a")));
  write("work/b.ics", "no calendar\n");
  write("work/c.ics", calendarOf(event(3, "c")));
  const ImportResult result = import({folder_ / "work", folder_ / "missing.ics"});
  EXPECT_EQ(titles(), " a c");
  ASSERT_EQ(result.broken.size(), 2u);
  EXPECT_NE(result.broken[1].find("missing.ics: there is no such file"), std::string::npos);
  EXPECT_EQ(database().calendars().size(), 1u) << "no calendar is made for what is none";
}

TEST_F(BrokenCalendarTest, AFileFullOfFaultsIsNotToldOfLineByLine) {
  std::string lines;
  for (int i = 0; i < 5000; ++i) lines += "what is this\n";
  const ImportResult result = import({write("junk.ics", calendarOf(lines + event(1, "a")))});
  EXPECT_EQ(titles(), " a");
  EXPECT_EQ(result.brokenCount, 5000u);
  ASSERT_EQ(result.broken.size(), kMaxListedOfFile + 1);
  EXPECT_NE(result.broken.back().find("junk.ics: and 4900 more"), std::string::npos) << result.broken.back();
}

TEST_F(BrokenCalendarTest, WhatThePhoneHasNoPlaceForIsNamedOnceWithItsCount) {
  const std::string alarm =
      "BEGIN:VALARM\nTRIGGER:-PT5M\nDESCRIPTION:of the alarm\nATTACH:sound\nEND:VALARM\n";
  const std::string task = "BEGIN:VTODO\nUID:t\nDESCRIPTION:of the task\n" + alarm + "END:VTODO\n";
  const std::string full =
      event(1, "a",
            alarm + alarm + "ATTENDEE:mailto:a\nATTENDEE:mailto:b\nDESCRIPTION:\nURL:u\nCREATED:x\nX-Y:z\n") +
      event(2, "b", "DESCRIPTION:text\nATTACH:file\nTRANSP:OPAQUE\n") + task + task +
      "BEGIN:VJOURNAL\nEND:VJOURNAL\nBEGIN:X-THING\nEND:X-THING\n";
  const auto warnings = [this](const std::filesystem::path& path) {
    std::string all;
    for (const std::string& warning : importCalendars(database(), {path}).warnings) all += warning + "\n";
    return all;
  };
  EXPECT_EQ(
      warnings(write("full.ics", calendarOf(full))),
      (folder_ / "full.ics").string() +
          ": left out, for the phone's calendar has no place for it: 2 to-dos, 1 journal entry, 1 entry of "
          "another kind, 2 alarms, 2 attendees, 1 attachment, 1 description and 1 web address\n");
  EXPECT_EQ(warnings(write("plain.ics", calendarOf(event(1, "a", "TRANSP:OPAQUE\nCLASS:PUBLIC\n")))), "");
  const std::string ended = "RRULE:RSCALE=gregorian;FREQ=DAILY;UNTIL=19990101\n";
  EXPECT_EQ(warnings(write("ended.ics", calendarOf(event(1, "d", ended)))), "") << "the calendar is ours";
  write("dav/1.ics", calendarOf(event(1, "a", alarm)));
  write("dav/2.ics", calendarOf(event(2, "b", alarm)));
  EXPECT_EQ(
      warnings(folder_ / "dav"),
      (folder_ / "dav").string() + ": left out, for the phone's calendar has no place for it: 2 alarms\n")
      << "a folder with a file for each event is told of as a whole";
  EXPECT_EQ(
      warnings(write("prior.ics",
                     calendarOf(event(1, "c", "RECURRENCE-ID;RANGE=THISANDPRIOR:20240101T100000Z\n")))),
      (folder_ / "prior.ics").string() +
          ": left out, for the phone's calendar has no place for it: 1 change of earlier repetitions\n");
}

}  // namespace
}  // namespace phone
