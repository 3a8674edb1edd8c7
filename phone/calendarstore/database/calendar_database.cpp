#include "phone/calendarstore/database/calendar_database.h"

#include "phone/calendarstore/database/calendar_color.h"
#include "phone/calendarstore/database/identifiers.h"
#include "phone/calendarstore/database/schema.h"
#include "phone/calendarstore/database/series_tail.h"
#include "phone/foundation/atomic_file.h"

namespace phone {

namespace {

/// Makes the file, if there is none, with its folder. It is there whole or not at all: an empty file would be
/// a lost database that nobody notices.
void createIfMissing(const std::filesystem::path& file) {
  std::error_code error;
  if (std::filesystem::exists(file, error)) return;
  std::filesystem::create_directories(file.parent_path(), error);
  if (error) {
    throw DatabaseError(file.parent_path().string() + ": the folder cannot be made (" + error.message() +
                        ")");
  }
  try {
    createFileAtomically(file, newDatabaseContent());
  } catch (const std::runtime_error& failure) {
    throw DatabaseError(failure.what());
  }
}

const std::filesystem::path& prepare(const std::filesystem::path& file, OpenMode mode) {
  if (mode == OpenMode::kCreate) createIfMissing(file);
  return file;
}

CalendarRecord readCalendar(Statement& row) {
  return {row.integer(0), row.text(1), row.text(2), static_cast<std::uint32_t>(row.integer(3))};
}

}  // namespace

CalendarDatabase::CalendarDatabase(const std::filesystem::path& file, OpenMode mode)
    : connection_(prepare(file, mode)) {
  // Enough for a large import to stay in memory until it is written at once.
  connection_.execute("PRAGMA cache_size = -32768");
  requireTables(connection_);
}

Statement& CalendarDatabase::prepared(const char* sql) {
  const auto known = statements_.find(sql);
  if (known != statements_.end()) return known->second;
  return statements_.emplace(sql, Statement(connection_.handle(), sql)).first->second;
}

Transaction CalendarDatabase::beginChange() {
  zones_.clear();
  zoneRows_.clear();
  changedSeries_.clear();
  return Transaction(connection_, [this] { settleSeries(); });
}

void CalendarDatabase::settleSeries() {
  for (const auto& [calendar, uid] : changedSeries_) settleTails(*this, calendar, uid);
  changedSeries_.clear();
}

std::vector<CalendarRecord> CalendarDatabase::calendars() {
  Statement& query = prepared("SELECT id, identifier, title, color FROM calendar ORDER BY id");
  const StatementScope scope(query);
  std::vector<CalendarRecord> all;
  while (query.step()) all.push_back(readCalendar(query));
  return all;
}

std::optional<CalendarRecord> CalendarDatabase::calendarWithIdentifier(const std::string& identifier) {
  Statement& query = prepared("SELECT id, identifier, title, color FROM calendar WHERE identifier = ?1");
  const StatementScope scope(query);
  if (!query.bind(1, identifier).step()) return std::nullopt;
  return readCalendar(query);
}

CalendarRecord CalendarDatabase::calendarNamed(const std::string& title, std::optional<std::uint32_t> color) {
  const std::string identifier = calendarIdentifier(title);
  if (auto known = calendarWithIdentifier(identifier)) {
    if (color && *color != known->color) {
      prepared("UPDATE calendar SET color = ?2 WHERE id = ?1").bind(1, known->id).bind(2, *color).run();
      known->color = *color;
    }
    return *known;
  }
  CalendarRecord added{0, identifier, title, color.value_or(paletteColor(calendars().size()))};
  prepared("INSERT INTO calendar (identifier, title, color) VALUES (?1, ?2, ?3)")
      .bind(1, added.identifier)
      .bind(2, added.title)
      .bind(3, added.color)
      .run();
  added.id = connection_.lastInsertedRow();
  return added;
}

const EventZone* CalendarDatabase::zone(std::int64_t id) {
  if (id == 0) return nullptr;
  if (const auto known = zones_.find(id); known != zones_.end()) return &known->second;
  Statement& query = prepared("SELECT name, definition FROM zone WHERE id = ?1");
  const StatementScope scope(query);
  // A zone that this system no longer knows reads as universal time: wrong by hours, but not lost.
  EventZone zone = EventZone::utc();
  if (query.bind(1, id).step()) {
    const std::string definition = query.text(1);
    auto found =
        definition.empty() ? EventZone::named(query.text(0)) : EventZone::defined(query.text(0), definition);
    if (found) zone = std::move(*found);
  }
  return &zones_.emplace(id, std::move(zone)).first->second;
}

std::int64_t CalendarDatabase::rowOf(const std::optional<EventZone>& zone) {
  if (!zone) return 0;
  const auto [known, isNew] = zoneRows_.try_emplace({zone->name(), zone->definition()});
  if (isNew) known->second = findOrAddZone(*zone);
  return known->second;
}

std::int64_t CalendarDatabase::findOrAddZone(const EventZone& zone) {
  Statement& query = prepared("SELECT id FROM zone WHERE name = ?1 AND definition = ?2");
  const StatementScope scope(query);
  if (query.bind(1, zone.name()).bind(2, zone.definition()).step()) return query.integer(0);
  prepared("INSERT INTO zone (name, definition) VALUES (?1, ?2)")
      .bind(1, zone.name())
      .bind(2, zone.definition())
      .run();
  return connection_.lastInsertedRow();
}

}  // namespace phone
