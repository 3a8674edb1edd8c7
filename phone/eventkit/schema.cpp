#include "phone/eventkit/schema.h"

namespace phone {

namespace {

constexpr std::int64_t kVersion = 1;

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
constexpr const char* kTables = R"sql(
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

}  // namespace

bool hasTables(Connection& connection) {
  Statement query(connection.handle(),
                  "SELECT (SELECT count(*) FROM sqlite_master), user_version "
                  "FROM pragma_user_version");
  query.step();
  const std::int64_t version = query.integer(1);
  if (version == 0 && query.integer(0) == 0) return false;
  if (version == kVersion) return true;
  throw DatabaseError(std::string(sqlite3_db_filename(connection.handle(), "main")) +
                      ": this is no calendar database of this version of the phone; move the file away and "
                      "import the calendars again");
}

void createTables(Connection& connection) {
  if (hasTables(connection)) return;
  Transaction transaction(connection);
  // Another process may have been quicker.
  if (!hasTables(connection)) connection.execute(kTables);
  transaction.commit();
}

}  // namespace phone
