// The whole road: the sample calendars are imported into the phone's own calendar store, the home screen
// boots with the plug-in, and its list is compared with samples.expected, line by line.
#include <algorithm>
#include <fstream>

#include "phone/calendarstore/ics/calendar_import.h"
#include "phone/eventkit/store_connection.h"
#include "phone/foundation/foundation.h"
#include "phone/springboard/home_screen.h"
#include "tests/support/built.h"
#include "tests/tavimo/support/releases.h"

namespace phone {
namespace {

using Lines = std::vector<std::string>;

std::string timeOf(const std::optional<double>& seconds) {
  return seconds ? utf8(dateAt(*seconds)->description()) : "none";
}

std::string lineOf(const ListRow& row) {
  std::string subtitle = row.subtitle;
  std::ranges::replace(subtitle, '\n', '/');
  return row.identifier + " | " + row.title + " | " + subtitle + " | " + row.message + " | " +
         timeOf(row.date) + (row.isAllDay ? " all day to " : " to ") + timeOf(row.endDate) + " | " +
         timeOf(row.publicationDate) + " | " + row.launchURL;
}

Lines linesOf(const std::filesystem::path& file) {
  std::ifstream stream(file);
  Lines lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

class SampleCalendars : public EachRelease {};

TEST_P(SampleCalendars, AreListedAboveThePhonesOwnNotifications) {
  const TemporaryFolder root;
  const auto write = [&](const char* name, const std::string& rootElement) {
    writeBytes(root.path() / "var/mobile/Library/Preferences" / name, propertyList(rootElement));
  };
  std::filesystem::create_directories(root.path() / "var/mobile/Library/Preferences");
  write(kCalendarApp, "<dict/>");
  write(kSettings, "<dict><key>displayLocation</key><true/></dict>");
  write(kOrdering, "<array><string>Orvessa</string><string>System Items</string></array>");
  write(kHiddenEvents,
        "<dict><key>x-apple-calevent://9AE6EF02-37D8-99A0-ECE5-4B9892AD197A/lunch@samples.example</key>"
        "<string>N</string></dict>");
  HomeScreen phone = HomeScreen::boot(
      {.root = root.path(), .release = release(), .now = utc(2014, 3, 7, 8, 41), .timeZone = "Europe/Berlin"},
      pluginLibrary());
  importCalendars(sharedDatabaseForWriting(), {sourceFolder() / "samples"});
  phone.postNotification({.title = "Anna", .text = "Lunch?"});
  const Lines expected = linesOf(sourceFolder() / "tests/tavimo/publishing/samples.expected");
  for (int load = 1; load <= 3; ++load) {
    SCOPED_TRACE(load);
    phone.load();
    Lines listed;
    for (const ListRow& row : phone.rows()) listed.push_back(lineOf(row));
    EXPECT_EQ(listed, expected);
  }
}

TAVIMO_ON_EACH_RELEASE(SampleCalendars);

}  // namespace
}  // namespace phone
