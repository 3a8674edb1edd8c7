// An empty calendar database in a folder of its own, without any class of the phone, and helpers to write and
// to read times.
#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

#include "phone/calendarstore/database/calendar_database.h"

namespace phone {

/// "2024-03-31 12:00:00" as a wall time, and back; a date alone is its midnight.
inline Seconds parseTime(const std::string& text) {
  int part[6] = {};
  std::sscanf(text.c_str(), "%d-%d-%d %d:%d:%d", &part[0], &part[1], &part[2], &part[3], &part[4], &part[5]);
  return wallSeconds(cctz::civil_second(part[0], part[1], part[2], part[3], part[4], part[5]));
}

inline std::string showTime(Seconds wall) {
  const cctz::civil_second time = civilTime(wall);
  char text[40];
  std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", static_cast<int>(time.year()),
                time.month(), time.day(), time.hour(), time.minute(), time.second());
  return text;
}

class CoreTest : public testing::Test {
 protected:
  CoreTest() {
    char pattern[] = "/tmp/eventkit_test_XXXXXX";
    folder_ = ::mkdtemp(pattern);
  }
  ~CoreTest() override { std::filesystem::remove_all(folder_); }

  CalendarDatabase& database() {
    if (!database_) database_.emplace(folder_ / "Calendar.sqlitedb", OpenMode::kCreate);
    return *database_;
  }

  /// Writes a file below the test's folder and gives its path.
  std::filesystem::path write(const std::string& name, const std::string& content) {
    std::filesystem::path file = folder_ / name;
    std::filesystem::create_directories(file.parent_path());
    std::ofstream(file, std::ios::binary) << content;
    return file;
  }

  std::filesystem::path folder_;
  std::optional<CalendarDatabase> database_;
};

/// A calendar around the lines, which end in LF.
inline std::string calendarOf(const std::string& lines) {
  return "BEGIN:VCALENDAR\nVERSION:2.0\n" + lines + "END:VCALENDAR\n";
}

/// An event of an hour, with further lines.
inline std::string eventOf(const std::string& uid, const std::string& start, const std::string& title,
                           const std::string& lines = "") {
  return "BEGIN:VEVENT\nUID:" + uid + "\nDTSTART:" + start + "\nDURATION:PT1H\nSUMMARY:" + title + "\n" +
         lines + "END:VEVENT\n";
}

}  // namespace phone
