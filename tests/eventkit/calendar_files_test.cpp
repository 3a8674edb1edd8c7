// Calendar files with their occurrences beside them. A file NAME.ics in calendars/ is imported, searched, and
// the result compared with NAME.expected line by line; that file also says where the phone is and which range
// is searched.
#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

#include "phone/calendarstore/database/occurrence_query.h"
#include "phone/calendarstore/ics/calendar_import.h"
#include "tests/eventkit/core_fixture.h"
#include "tests/support/built.h"

namespace phone {
namespace {

std::string show(Seconds instant, const EventZone& zone) { return showTime(zone.toWall(instant)); }

std::string show(const EventOccurrence& event, const EventZone& zone) {
  const std::string start = show(event.start, zone);
  const std::string end = show(event.end, zone);
  std::string line;
  if (event.isAllDay) {
    EXPECT_EQ(start.substr(11), "00:00:00");
    EXPECT_EQ(end.substr(11), "23:59:59");
    line = start.substr(0, 10) + " to " + end.substr(0, 10) + " all day";
  } else {
    line = start + " - " + end;
  }
  if (!event.title.empty()) line += " " + event.title;
  if (event.location) line += " @ " + *event.location;
  std::replace(line.begin() + 1, line.end(), '\n', '|');
  return line + "\n";
}

/// Writes out an import and a search in the form of the .expected files.
std::string report(CalendarDatabase& database, const std::filesystem::path& file, const std::string& zoneName,
                   const std::string& rangeText) {
  const EventZone zone = *EventZone::named(zoneName);
  std::ostringstream text;
  text << "zone " << zoneName << "\nrange " << rangeText << "\n";
  const ImportResult imported = importCalendars(database, {file}, {.phoneZone = zone});
  std::vector<std::int64_t> calendars;
  for (const ImportedCalendar& one : imported.calendars) {
    char color[10];
    std::snprintf(color, sizeof color, "#%08x", one.calendar.color);
    text << "calendar " << one.calendar.title << " " << color << "\n";
    calendars.push_back(one.calendar.id);
  }
  for (const std::string& warning : imported.warnings) {
    text << "warning " << warning.substr(warning.find(file.filename().string())) << "\n";
  }
  const auto wall = [&](std::size_t at) { return zone.toInstant(parseTime(rangeText.substr(at, 19))); };
  for (const EventOccurrence& event :
       occurrencesInRange(database, {wall(0), wall(rangeText.size() - 19)}, calendars, zone).occurrences) {
    text << show(event, zone);
  }
  return text.str();
}

class CalendarFileTest : public CoreTest, public testing::WithParamInterface<std::string> {
 protected:
  /// Imports a file or a folder and compares the search that `expected` describes.
  void compare(const std::filesystem::path& calendars, const std::filesystem::path& expected) {
    std::ifstream stream(expected);
    std::string zone;
    std::string range;
    std::getline(stream, zone);
    std::getline(stream, range);
    ASSERT_EQ(zone.rfind("zone ", 0), 0u) << expected;
    ASSERT_EQ(range.rfind("range ", 0), 0u) << expected;
    std::ostringstream rest;
    rest << stream.rdbuf();
    EXPECT_EQ(report(database(), calendars, zone.substr(5), range.substr(6)),
              zone + "\n" + range + "\n" + rest.str());
  }
};

TEST_P(CalendarFileTest, HasTheExpectedOccurrences) {
  const auto file = sourceFolder() / "tests/eventkit/calendars" / GetParam();
  compare(file, std::filesystem::path(file).replace_extension(".expected"));
}

TEST_F(CalendarFileTest, TheSamplesShowWhatTheyAreMeantTo) {
  compare(sourceFolder() / "samples", sourceFolder() / "tests/eventkit/samples.expected");
}

std::vector<std::string> calendarFiles() {
  std::vector<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(sourceFolder() / "tests/eventkit/calendars")) {
    if (entry.path().extension() == ".ics") names.push_back(entry.path().filename());
  }
  return names;
}

INSTANTIATE_TEST_SUITE_P(Calendars, CalendarFileTest, testing::ValuesIn(calendarFiles()),
                         [](const auto& file) { return std::filesystem::path(file.param).stem().string(); });

}  // namespace
}  // namespace phone
