#include "phone/calendarstore/database/schema.h"

#include <iterator>
#include <memory>
#include <new>

namespace phone {

namespace {

// A query for a range of time must touch only what can fall into it:
//
// - occurrence holds every repetition that no rule makes, single events above all. Occurrences of similar
//   length share a bucket (occurrence_bucket.h), so "overlaps the range" becomes one short stretch of the
//   primary key in each bucket.
// - series holds the rules. last_end lets the finished ones be skipped by the index.
//
// event_date names what an event that repeats leaves out (kinds 1 to 3, see RepetitionKind) or adds (kind 0).
// An event that stands in for a repetition of another says so itself, in replaces_kind and replaces_value;
// the repetition is left out because such a row exists, in whatever order the two came into the store.
constexpr const char* kFirstTables = R"sql(
CREATE TABLE calendar (
  id INTEGER PRIMARY KEY,
  identifier TEXT NOT NULL UNIQUE,
  title TEXT NOT NULL,
  color INTEGER NOT NULL
);
CREATE TABLE zone (
  id INTEGER PRIMARY KEY,
  name TEXT NOT NULL,
  definition TEXT NOT NULL,
  UNIQUE (name, definition)
);
CREATE TABLE event (
  id INTEGER PRIMARY KEY,
  calendar INTEGER NOT NULL REFERENCES calendar,
  uid TEXT NOT NULL,
  replaces_kind INTEGER NOT NULL,
  replaces_value INTEGER NOT NULL,
  title TEXT NOT NULL,
  location TEXT,
  all_day INTEGER NOT NULL,
  zone INTEGER NOT NULL,
  start INTEGER NOT NULL,
  end INTEGER NOT NULL,
  repeats INTEGER NOT NULL,
  cancelled INTEGER NOT NULL,
  imported INTEGER NOT NULL,
  revision INTEGER NOT NULL,
  modified INTEGER NOT NULL,
  UNIQUE (calendar, uid, replaces_kind, replaces_value)
);
CREATE TABLE occurrence (
  bucket INTEGER NOT NULL,
  start INTEGER NOT NULL,
  event INTEGER NOT NULL,
  end INTEGER NOT NULL,
  PRIMARY KEY (bucket, start, event)
) WITHOUT ROWID;
CREATE TABLE series (
  id INTEGER PRIMARY KEY,
  event INTEGER NOT NULL,
  start INTEGER NOT NULL,
  duration INTEGER NOT NULL,
  zone INTEGER NOT NULL,
  last_end INTEGER NOT NULL,
  rule TEXT NOT NULL
);
CREATE INDEX series_by_last_end ON series (last_end);
CREATE INDEX series_by_event ON series (event);
CREATE TABLE event_date (
  event INTEGER NOT NULL,
  kind INTEGER NOT NULL,
  value INTEGER NOT NULL,
  end INTEGER NOT NULL,
  PRIMARY KEY (event, kind, value)
) WITHOUT ROWID;
PRAGMA user_version = 1;
)sql";

// exception_rule holds the rules that leave repetitions out.
//
// An event can stand in for a repetition and change all later ones (replaces_kind 4 to 6: the same names, and
// "all later ones"). What it makes of them is worked out when it comes into the store: tail holds one row for
// each stretch of a rule, and for each single date (of an empty rule), that such an event changes. Their
// starts are wall times of the series, "base", and "shift" leads from them to wall times of the event. The
// series itself ends, for a search, at changed_from.
constexpr const char* kChangesOfLaterRepetitions = R"sql(
CREATE TABLE exception_rule (
  event INTEGER NOT NULL,
  wall_start INTEGER NOT NULL,
  rule TEXT NOT NULL,
  PRIMARY KEY (event, wall_start, rule)
) WITHOUT ROWID;
ALTER TABLE event ADD COLUMN changed_from INTEGER;
CREATE INDEX event_changing_later ON event (calendar, uid) WHERE replaces_kind > 3;
CREATE TABLE tail (
  id INTEGER PRIMARY KEY,
  event INTEGER NOT NULL,
  zone INTEGER NOT NULL,
  duration INTEGER NOT NULL,
  base INTEGER NOT NULL,
  base_zone INTEGER NOT NULL,
  base_wall_start INTEGER NOT NULL,
  rule TEXT NOT NULL,
  first INTEGER NOT NULL,
  last INTEGER NOT NULL,
  shift INTEGER NOT NULL,
  start INTEGER NOT NULL,
  last_end INTEGER NOT NULL
);
CREATE INDEX tail_by_last_end ON tail (last_end);
CREATE INDEX tail_by_base ON tail (base);
PRAGMA user_version = 2;
)sql";

/// Step n leads from version n to the next one. A new database takes them all.
constexpr const char* kSteps[] = {kFirstTables, kChangesOfLaterRepetitions};
constexpr std::int64_t kVersion = std::size(kSteps);

std::int64_t versionOf(Connection& connection) {
  Statement query(connection.handle(), "PRAGMA user_version");
  query.step();
  return query.integer(0);
}

void addWhatIsNew(Connection& connection) {
  Transaction transaction(connection);
  // Another process may have been quicker.
  for (std::int64_t version = versionOf(connection); version < kVersion; ++version) {
    connection.execute(kSteps[version]);
  }
  transaction.commit();
}

}  // namespace

std::string newDatabaseContent() {
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(":memory:", &opened, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> memory(opened, &sqlite3_close);
  if (code != SQLITE_OK) throw std::bad_alloc();
  for (const char* const step : kSteps) {
    if (sqlite3_exec(opened, step, nullptr, nullptr, nullptr) != SQLITE_OK) throw std::bad_alloc();
  }
  sqlite3_int64 length = 0;
  const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> bytes(
      sqlite3_serialize(opened, "main", &length, 0), &sqlite3_free);
  if (bytes == nullptr) throw std::bad_alloc();
  return {reinterpret_cast<const char*>(bytes.get()), static_cast<std::size_t>(length)};
}

void requireTables(Connection& connection) {
  const std::int64_t version = versionOf(connection);
  if (version > 0 && version < kVersion) addWhatIsNew(connection);
  if (version > 0 && version <= kVersion) return;
  Statement tables(connection.handle(), "SELECT count(*) FROM sqlite_master");
  tables.step();
  const bool isEmpty = version == 0 && tables.integer(0) == 0;
  throw DatabaseError(std::string(sqlite3_db_filename(connection.handle(), "main")) +
                      (isEmpty ? ": the calendar database is empty"
                               : ": this is no calendar database of this version of the phone") +
                      "; move the file away and import the calendars again");
}

}  // namespace phone
