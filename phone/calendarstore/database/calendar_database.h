// A connection to the calendar database with its prepared statements, calendars and zones.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

#include "phone/calendarstore/database/sqlite.h"
#include "phone/calendarstore/recurrence/event_zone.h"

namespace phone {

/// Where the phone keeps its calendar database.
inline constexpr const char* kCalendarDatabasePath = "/var/mobile/Library/Calendar/Calendar.sqlitedb";

struct CalendarRecord {
  std::int64_t id = 0;
  /// Stable: made from the name under which the calendar first came into the store.
  std::string identifier;
  std::string title;
  /// 0xRRGGBBAA.
  std::uint32_t color = 0;
};

enum class OpenMode { kExisting, kCreate };

class CalendarDatabase {
 public:
  /// Opens the file, creating it with its folder if asked to. Throws DatabaseError.
  CalendarDatabase(const std::filesystem::path& file, OpenMode mode);

  Connection& connection() { return connection_; }
  /// Begins a change of the database. What is remembered of its rows is forgotten, for a change that failed
  /// before may have taken them back.
  Transaction beginChange();
  /// Has the tails of that series worked out anew (see series_tail.h) before the change is committed.
  void markSeries(std::int64_t calendar, std::string_view uid) { changedSeries_.emplace(calendar, uid); }
  /// The statement for that SQL, prepared at the first use. The text must be a literal.
  Statement& prepared(const char* sql);

  /// All calendars, in the order in which they came into the store.
  std::vector<CalendarRecord> calendars();
  std::optional<CalendarRecord> calendarWithIdentifier(const std::string& identifier);
  /// The calendar of that name; a new one is added if there is none. A new one gets the colour, or the next
  /// one of the phone's own colours; so does an old one, if a colour is given.
  CalendarRecord calendarNamed(const std::string& title, std::optional<std::uint32_t> color);

  /// The zone of that row (borrowed), or nil for 0.
  const EventZone* zone(std::int64_t id);
  /// The row of the zone, added if needed; 0 for no zone.
  std::int64_t rowOf(const std::optional<EventZone>& zone);

 private:
  std::int64_t findOrAddZone(const EventZone& zone);

  void settleSeries();

  Connection connection_;
  std::unordered_map<const char*, Statement> statements_;
  std::unordered_map<std::int64_t, EventZone> zones_;
  std::map<std::pair<std::string, std::string>, std::int64_t> zoneRows_;
  std::set<std::pair<std::int64_t, std::string>> changedSeries_;
};

}  // namespace phone
