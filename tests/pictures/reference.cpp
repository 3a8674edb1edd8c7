#include "tests/pictures/reference.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>

#include "phone/calendarstore/ics/calendar_import.h"
#include "tests/foundation/temporary_folder.h"
#include "tests/support/built.h"

namespace phone {

namespace fs = std::filesystem;

namespace {

const fs::path kPictures = sourceFolder() / "tests/pictures";

bool isWriting() { return std::getenv("TAVIMO_WRITE_PICTURES") != nullptr; }

}  // namespace

fs::path referenceFolder(const char* kind) { return kPictures / kind; }

void expectText(const std::string& drawn, const fs::path& reference) {
  if (isWriting()) {
    writeBytes(reference, drawn);
    return;
  }
  EXPECT_EQ(drawn, bytesOf(reference)) << "in " << reference;
}

void writePreferences(const fs::path& root, const char* name, const std::string& entries) {
  const fs::path folder = root / "var/mobile/Library/Preferences";
  fs::create_directories(folder);
  writeBytes(folder / name,
             "<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>" + entries + "</dict></plist>");
}

void importInto(const fs::path& root, const std::vector<const char*>& calendars) {
  CalendarDatabase database(root / (kCalendarDatabasePath + 1), OpenMode::kCreate);
  std::vector<fs::path> files;
  files.reserve(calendars.size());
  for (const char* const calendar : calendars) files.push_back(kPictures / "calendars" / calendar);
  importCalendars(database, files);
}

std::string pointsText(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.6g", value);
  return text;
}

std::string rectText(const CGRect& rect) {
  return pointsText(rect.origin.x) + "," + pointsText(rect.origin.y) + " " + pointsText(rect.size.width) +
         "x" + pointsText(rect.size.height);
}

PixelRect pixelsAround(const CGRect& rect, double scale) {
  return {static_cast<int>(std::floor((rect.origin.x - 1) * scale)),
          static_cast<int>(std::floor((rect.origin.y - 1) * scale)),
          static_cast<int>(std::ceil((rect.size.width + 2) * scale)),
          static_cast<int>(std::ceil((rect.size.height + 2) * scale))};
}

}  // namespace phone
