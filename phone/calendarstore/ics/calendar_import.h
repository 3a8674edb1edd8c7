// Importing calendars: .ics files, and folders of .ics files as synchronising programs keep them.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "phone/calendarstore/database/calendar_database.h"
#include "phone/calendarstore/ics/ics_reader.h"

namespace phone {

struct ImportProgress {
  const std::filesystem::path& file;
  std::uint64_t bytesDone;
  std::uint64_t bytesTotal;
  std::size_t events;
};

struct ImportOptions {
  /// Removes the events of the imported calendars that came from a file once and are in none now. Without it
  /// they stay, since a file may hold a part of a calendar only. Events made on the phone stay in any case.
  bool removeMissing = false;
  /// Leaves out what is broken and takes the rest, instead of refusing everything.
  bool skipBroken = false;
  /// Where the phone is: ends of series that are given as instants are read there if the event has no zone.
  EventZone phoneZone = EventZone::utc();
  /// Called now and then, and once at the end; may be empty.
  std::function<void(const ImportProgress&)> progress = {};
};

/// How many events of a calendar went which way.
struct ImportedCalendar {
  CalendarRecord calendar;
  std::size_t added = 0;
  std::size_t updated = 0;
  std::size_t unchanged = 0;
  /// Left as they are, because the database has a newer version.
  std::size_t older = 0;
  /// Called off; they are among the counts above, but never show.
  std::size_t cancelled = 0;
  std::size_t removed = 0;
};

/// A file that is broken from beginning to end is not told of line by line.
inline constexpr std::size_t kMaxListedOfFile = 100;

struct ImportResult {
  std::vector<ImportedCalendar> calendars;
  /// What was read otherwise than the file may have meant it, as "file:line: reason".
  std::vector<std::string> warnings;
  /// What was broken and left out, as "file:line: reason", kMaxListedOfFile for each file at most; how many
  /// there were in all.
  std::vector<std::string> broken;
  std::size_t brokenCount = 0;
};

/// Imports each path in one transaction: all of them, or nothing.
///
/// A file's calendar has the name that the file gives it, else the file's own. A folder of .ics files is one
/// calendar, with its name and colour in files named `displayname` and `color` beside them; without
/// `displayname`, files that name a calendar go to that one, and the others to one of the folder's name. A
/// folder without .ics files stands for the folders in it.
///
/// A calendar of the same name is the same calendar: events that it has already, by uid and replaced
/// repetition, are updated, and the others stay.
///
/// Throws IcsError for a file that cannot be read, unless what is broken is to be left out, and
/// DatabaseError; nothing is changed then.
ImportResult importCalendars(CalendarDatabase& database, const std::vector<std::filesystem::path>& paths,
                             const ImportOptions& options = {});

}  // namespace phone
