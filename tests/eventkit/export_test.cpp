// What an export writes, an import reads: the same calendars with the same events.
#include <algorithm>

#include "phone/calendarstore/database/event_changes.h"
#include "phone/calendarstore/database/event_table.h"
#include "phone/calendarstore/database/occurrence_query.h"
#include "phone/calendarstore/ics/calendar_export.h"
#include "phone/calendarstore/ics/calendar_import.h"
#include "tests/eventkit/core_fixture.h"
#include "tests/support/built.h"

namespace phone {
namespace {

namespace fs = std::filesystem;

class Export : public CoreTest {
 protected:
  std::string exported() {
    std::string text;
    for (const CalendarRecord& calendar : database().calendars()) {
      text += exportCalendar(database(), calendar, kNow).text;
    }
    return text;
  }

  /// A second phone with what the first one exports.
  CalendarDatabase& reimported() {
    const fs::path file = write("export.ics", exported());
    second_.emplace(folder_ / "Second.sqlitedb", OpenMode::kCreate);
    result_ = importCalendars(*second_, {file});
    return *second_;
  }

  static constexpr Seconds kNow = 700'000'000;

  std::optional<CalendarDatabase> second_;
  ImportResult result_;
};

/// A zone of a file's own may be called otherwise in another file.
std::string zoneText(const std::optional<EventZone>& zone) {
  if (!zone) return "no zone";
  return zone->definition().empty() ? zone->name() : "a zone of its own";
}

std::string lineOf(const EventOccurrence& event, const EventRecord& record) {
  return showTime(event.start) + " " + showTime(event.end) + (event.isAllDay ? " all day " : " ") +
         zoneText(record.zone) + " " + event.uid + " " + event.title + " @ " +
         event.location.value_or("nowhere") + " " + std::to_string(record.revision) +
         (event.replaces ? " for " + std::to_string(event.replaces->value) : "") + "\n";
}

/// Everything that an import can tell apart: calendars, the rows of the events, and all occurrences of years.
std::string contentOf(CalendarDatabase& database) {
  const EventZone zone = *EventZone::named("America/New_York");
  std::string content;
  for (const CalendarRecord& calendar : database.calendars()) {
    content += "calendar " + calendar.title + " " + std::to_string(calendar.color) + "\n";
    // A year at a time: one search gives the earliest few thousand.
    for (int year = 1997; year < 2028; ++year) {
      const TimeRange range{wallSeconds(cctz::civil_second(year)), wallSeconds(cctz::civil_second(year + 1))};
      for (const EventOccurrence& event :
           occurrencesInRange(database, range, {calendar.id}, zone).occurrences) {
        content += lineOf(event, readEvent(database, event.event));
      }
    }
  }
  return content;
}

class ExportOfFiles : public Export, public testing::WithParamInterface<fs::path> {};

TEST_P(ExportOfFiles, ImportsToTheSameEvents) {
  importCalendars(database(), {GetParam()});
  ASSERT_NE(contentOf(database()), "");
  EXPECT_EQ(contentOf(reimported()), contentOf(database()));
  EXPECT_EQ(result_.warnings.size(), 0U) << result_.warnings.front();
  // Nor does it change anything on the phone that exported it.
  const std::string before = contentOf(database());
  const ImportResult again = importCalendars(database(), {folder_ / "export.ics"});
  for (const ImportedCalendar& calendar : again.calendars) EXPECT_EQ(calendar.added, 0U);
  EXPECT_EQ(contentOf(database()), before);
}

std::vector<fs::path> calendarFiles() {
  std::vector<fs::path> files{sourceFolder() / "samples"};
  for (const char* const folder : {"tests/eventkit/calendars", "tests/pictures/calendars"}) {
    for (const auto& entry : fs::directory_iterator(sourceFolder() / folder)) {
      if (entry.path().extension() == ".ics") files.push_back(entry.path());
    }
  }
  return files;
}

INSTANTIATE_TEST_SUITE_P(Calendars, ExportOfFiles, testing::ValuesIn(calendarFiles()),
                         [](const auto& file) { return fs::path(file.param).stem().string(); });

TEST_F(Export, KeepsWhatIsHardToWrite) {
  const std::string zone =
      "BEGIN:VTIMEZONE\nTZID:(UTC+05:00) Here; there, now\nBEGIN:STANDARD\nDTSTART:19700101T000000\n"
      "TZOFFSETFROM:+0500\nTZOFFSETTO:+0500\nEND:STANDARD\nEND:VTIMEZONE\n";
  const std::string other =
      "BEGIN:VTIMEZONE\nTZID:Mine\nBEGIN:STANDARD\nDTSTART:19700101T000000\nTZOFFSETFROM:+0300\n"
      "TZOFFSETTO:+0300\nEND:STANDARD\nEND:VTIMEZONE\n";
  const std::string sameName =
      "BEGIN:VTIMEZONE\nTZID:Mine\nBEGIN:STANDARD\nDTSTART:19700101T000000\nTZOFFSETFROM:-0300\n"
      "TZOFFSETTO:-0300\nEND:STANDARD\nEND:VTIMEZONE\n";
  const auto timed = [](const std::string& uid, const std::string& tzid, const std::string& lines) {
    return "BEGIN:VEVENT\nUID:" + uid + "\nDTSTART;TZID=" + tzid + ":20240501T100000\nDURATION:PT90M\n" +
           lines + "END:VEVENT\n";
  };
  const std::string name = "X-WR-CALNAME:Odd \\\\ \\, \\; name: " + std::string(90, 'x') + "ü\n";
  importCalendars(
      database(),
      {write("a.ics",
             calendarOf(
                 name + "COLOR:#11223344\n" + zone + other +
                 timed("quoted", "\"(UTC+05:00) Here; there, now\"", "SUMMARY:Zone unknown\n") +
                 timed("mine", "Mine", "SUMMARY:\\n\\n\nRRULE:FREQ=DAILY;COUNT=3\n") +
                 timed("until", "Europe/Berlin", "RRULE:FREQ=DAILY;UNTIL=20240510T075959Z\n") +
                 timed("dates", "Europe/Berlin",
                       "RDATE;VALUE=PERIOD;TZID=Europe/Berlin:20241026T100000/PT48H,20240601T100000/PT1H\n"
                       "RDATE;TZID=Europe/Berlin:20240701T100000\nEXDATE;VALUE=DATE:20240501\n") +
                 timed("one,two;three\\\\four", "Europe/Berlin",
                       "SUMMARY:" + std::string(40, 'a') + "äöüäöüäöüäöüäöüäöüäöü" + std::string(200, '\\') +
                           "\n") +
                 "BEGIN:VEVENT\nUID:lengths\nDTSTART;TZID=Europe/Berlin:20240329T100000\nDURATION:P1DT2H\n"
                 "RRULE:FREQ=DAILY;COUNT=4\nEND:VEVENT\n"
                 "BEGIN:VEVENT\nUID:floating\nDTSTART:20240501T100000\nRRULE:FREQ=WEEKLY;UNTIL="
                 "20240601T100000\n"
                 "EXDATE:20240508T100000\nEND:VEVENT\n"
                 "BEGIN:VEVENT\nUID:days\nDTSTART;VALUE=DATE:20240501\nDTEND;VALUE=DATE:20240503\n"
                 "RRULE:FREQ=MONTHLY;BYDAY=-1FR;UNTIL=20250101\nRDATE;VALUE=DATE:20240515\n"
                 "EXDATE;VALUE=DATE:20240531\nEND:VEVENT\n"
                 "BEGIN:VEVENT\nUID:off\nDTSTART:20240501T100000Z\nSTATUS:CANCELLED\nSEQUENCE:7\nEND:"
                 "VEVENT\n")),
       write("b.ics", calendarOf(name + sameName + timed("other mine", "Mine", "SUMMARY:Other\n")))});
  EXPECT_EQ(contentOf(reimported()), contentOf(database()));
  EXPECT_EQ(result_.calendars.at(0).cancelled, 1U);
}

TEST_F(Export, KeepsLaterChangesAndRulesThatLeaveRepetitionsOut) {
  const auto event = [](const std::string& uid, const std::string& lines) {
    return "BEGIN:VEVENT\nUID:" + uid + "\n" + lines + "END:VEVENT\n";
  };
  const std::string daily =
      "DTSTART;TZID=Europe/Berlin:20240501T100000\nDURATION:PT1H\nRRULE:FREQ=DAILY;COUNT=20\n";
  importCalendars(
      database(),
      {write("a.ics",
             calendarOf(event("later", daily) +
                        event("later",
                              "RECURRENCE-ID;RANGE=THISANDFUTURE;TZID=Europe/Berlin:20240505T100000\n"
                              "DTSTART;TZID=Europe/Berlin:20240505T120000\nSUMMARY:Moved\n") +
                        event("out", daily + "EXRULE:FREQ=WEEKLY;BYDAY=SA,SU\nEXRULE:FREQ=DAILY;COUNT=2\n") +
                        event("days",
                              "DTSTART;VALUE=DATE:20240501\nRRULE:FREQ=DAILY;COUNT=9\n"
                              "EXRULE:FREQ=DAILY;INTERVAL=3;UNTIL=20240506\n") +
                        event("hebrew", daily + "EXRULE:RSCALE=HEBREW;FREQ=YEARLY;COUNT=2\n") +
                        event("divided", daily + "EXRULE:FREQ=DAILY;INTERVAL=5\n")))});
  const EventZone berlin = *EventZone::named("Europe/Berlin");
  const Seconds third = parseTime("2024-05-03 08:00:00");
  for (const EventOccurrence& divided :
       occurrencesInRange(database(), {third, third + 1}, {1}, berlin).occurrences) {
    if (divided.uid != "divided") continue;
    changeEvent({database(), berlin, kNow}, divided,
                {.calendar = 1, .title = "Second part", .start = divided.start, .end = divided.end},
                EditSpan::kFutureOccurrences);
  }
  const std::string text = exported();
  EXPECT_NE(text.find("RANGE=THISANDFUTURE"), std::string::npos);
  EXPECT_NE(text.find("EXRULE;X-PHONE-DTSTART=20240501T100000:FREQ=DAILY;INTERVAL=5"), std::string::npos);
  EXPECT_EQ(contentOf(reimported()), contentOf(database()));
  EXPECT_NE(contentOf(database()).find("Second part"), std::string::npos);
}

TEST_F(Export, WritesLinesAsTheFormatWantsThem) {
  importCalendars(database(), {sourceFolder() / "samples"});
  const std::string text = exported();
  std::size_t start = 0;
  for (std::size_t end = text.find("\r\n"); end != std::string::npos; end = text.find("\r\n", start)) {
    EXPECT_LE(end - start, 75U) << text.substr(start, end - start);
    start = end + 2;
  }
  EXPECT_EQ(start, text.size());
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), std::count(text.begin(), text.end(), '\r'));
  // Every zone that is used is defined.
  EXPECT_NE(text.find("TZID:Europe/Berlin\r\n"), std::string::npos);
}

TEST_F(Export, KeepsCalendarsApart) {
  importCalendars(database(),
                  {write("0.ics", calendarOf("X-WR-CALNAME:Empty\nCOLOR:#112233\n")),
                   write("a.ics", calendarOf("X-WR-CALNAME:A\n" + eventOf("1", "20240501T100000Z", "x"))),
                   write("b.ics", calendarOf("X-WR-CALNAME:B\n" + eventOf("1", "20240501T100000Z", "y") +
                                             "BEGIN:VEVENT\nUID:2\nDTSTART;TZID=Nowhere:20240502T100000\n"
                                             "END:VEVENT\n"))});
  EXPECT_EQ(contentOf(reimported()), contentOf(database()));
  ASSERT_EQ(result_.calendars.size(), 3U);
  EXPECT_EQ(result_.calendars[0].added, 0U);
  EXPECT_EQ(result_.calendars[1].added, 1U);
  EXPECT_EQ(result_.calendars[2].added, 2U);
}

}  // namespace
}  // namespace phone
