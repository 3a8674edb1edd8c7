#include "phone/eventkit/event_table.h"

#include <algorithm>

#include "phone/eventkit/memory_check.h"
#include "phone/eventkit/occurrence_bucket.h"
#include "phone/eventkit/recurrence_rule.h"
#include "phone/eventkit/series_length.h"

namespace phone {

namespace {

constexpr int kAddedDate = 0;

std::int64_t bucketFor(const EventRecord& event, Seconds start, Seconds end) {
  return bucketOf(!event.zone, lengthClass(end - start));
}

void insertOccurrence(CalendarDatabase& database, std::int64_t row, const EventRecord& event, Seconds start,
                      Seconds end) {
  database.prepared("INSERT OR IGNORE INTO occurrence (bucket, start, event, end) VALUES (?1, ?2, ?3, ?4)")
      .bind(1, bucketFor(event, start, end))
      .bind(2, start)
      .bind(3, row)
      .bind(4, end)
      .run();
}

void insertDate(CalendarDatabase& database, std::int64_t row, int kind, Seconds value, Seconds end) {
  database.prepared("INSERT OR REPLACE INTO event_date (event, kind, value, end) VALUES (?1, ?2, ?3, ?4)")
      .bind(1, row)
      .bind(2, kind)
      .bind(3, value)
      .bind(4, end)
      .run();
}

/// When the last occurrence of the rule ends, in the event's own way of counting.
Seconds lastEnd(const EventRecord& event, const RecurrenceRule& rule) {
  const Seconds last = rule.lastStart();
  if (last >= kEndless) return kEndless;
  const EventZone* const zone = event.zone ? &*event.zone : nullptr;
  return SeriesLength::of(event).endAfter(zone != nullptr ? zone->toInstant(last) : last, zone);
}

void insertRepetitions(CalendarDatabase& database, std::int64_t row, const EventRecord& event,
                       std::int64_t zoneRow) {
  if (event.isCancelled) return;
  insertOccurrence(database, row, event, event.start, event.end);
  for (const std::string& rule : event.rules) {
    Statement& insert = database.prepared(
        "INSERT INTO series (event, start, duration, zone, last_end, rule) VALUES (?1, ?2, ?3, ?4, ?5, ?6)");
    insert.bind(1, row).bind(2, event.start).bind(3, SeriesLength::of(event).stored()).bind(4, zoneRow);
    insert.bind(5, lastEnd(event, RecurrenceRule::fromStored(rule, event.wallStart()))).bind(6, rule).run();
  }
  for (const RepetitionName& name : event.excluded) {
    insertDate(database, row, static_cast<int>(name.kind), name.value, 0);
  }
  for (const AddedDate& date : event.added) {
    insertDate(database, row, kAddedDate, date.start, date.end);
    insertOccurrence(database, row, event, date.start, date.end);
  }
}

void removeRepetitions(CalendarDatabase& database, std::int64_t row, const EventRecord& event) {
  const auto removeOccurrence = [&](Seconds start, Seconds end) {
    database.prepared("DELETE FROM occurrence WHERE bucket = ?1 AND start = ?2 AND event = ?3")
        .bind(1, bucketFor(event, start, end))
        .bind(2, start)
        .bind(3, row)
        .run();
  };
  removeOccurrence(event.start, event.end);
  for (const AddedDate& date : event.added) removeOccurrence(date.start, date.end);
  if (!event.repeats()) return;
  database.prepared("DELETE FROM series WHERE event = ?1").bind(1, row).run();
  database.prepared("DELETE FROM event_date WHERE event = ?1").bind(1, row).run();
}

void bindEvent(Statement& statement, const EventRecord& event, std::int64_t zoneRow) {
  statement.bind(1, event.calendar).bind(2, event.uid);
  statement.bind(3, event.replaces ? static_cast<int>(event.replaces->kind) : 0);
  statement.bind(4, event.replaces ? event.replaces->value : 0);
  statement.bind(5, event.title);
  if (event.location) {
    statement.bind(6, *event.location);
  } else {
    statement.bindNull(6);
  }
  statement.bind(7, event.isAllDay ? 1 : 0).bind(8, zoneRow).bind(9, event.start).bind(10, event.end);
  statement.bind(11, event.repeats() ? 1 : 0).bind(12, event.isCancelled ? 1 : 0);
  statement.bind(13, event.isImported ? 1 : 0).bind(14, event.revision).bind(15, event.modified);
}

void readDates(CalendarDatabase& database, std::int64_t row, EventRecord& event) {
  Statement& rules = database.prepared("SELECT rule, duration FROM series WHERE event = ?1 ORDER BY id");
  const StatementScope rulesScope(rules);
  for (rules.bind(1, row); rules.step();) {
    event.rules.push_back(rules.text(0));
    event.calendarDays = SeriesLength::fromStored(rules.integer(1)).days;
  }
  Statement& dates =
      database.prepared("SELECT kind, value, end FROM event_date WHERE event = ?1 ORDER BY kind, value");
  const StatementScope datesScope(dates);
  for (dates.bind(1, row); dates.step();) {
    if (dates.integer(0) == kAddedDate) {
      event.added.push_back({dates.integer(1), dates.integer(2)});
    } else {
      event.excluded.push_back({static_cast<RepetitionKind>(dates.integer(0)), dates.integer(1)});
    }
  }
}

}  // namespace

bool sameContent(const EventRecord& left, const EventRecord& right) {
  const auto zoneText = [](const EventRecord& event) {
    return event.zone ? event.zone->name() + "\n" + event.zone->definition() : std::string();
  };
  return left.title == right.title && left.location == right.location && left.isAllDay == right.isAllDay &&
         left.isCancelled == right.isCancelled && left.start == right.start && left.end == right.end &&
         left.calendarDays == right.calendarDays && zoneText(left) == zoneText(right) &&
         left.rules == right.rules && left.excluded == right.excluded && left.added == right.added;
}

std::optional<std::int64_t> insertEvent(CalendarDatabase& database, const EventRecord& event,
                                        std::int64_t zoneRow) {
  Statement& insert = database.prepared(
      "INSERT OR IGNORE INTO event (calendar, uid, replaces_kind, replaces_value, title, location, all_day, "
      "zone, start, end, repeats, cancelled, imported, revision, modified) "
      "VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14, ?15)");
  bindEvent(insert, event, zoneRow);
  insert.run();
  if (database.connection().changedRows() == 0) return std::nullopt;
  const std::int64_t row = database.connection().lastInsertedRow();
  const MemoryCheck memory;
  insertRepetitions(database, row, event, zoneRow);
  memory.require();
  return row;
}

std::optional<std::int64_t> insertEvent(CalendarDatabase& database, const EventRecord& event) {
  return insertEvent(database, event, database.rowOf(event.zone));
}

void replaceEvent(CalendarDatabase& database, std::int64_t row, const EventRecord& event) {
  removeRepetitions(database, row, readEvent(database, row));
  const std::int64_t zoneRow = database.rowOf(event.zone);
  Statement& update = database.prepared(
      "UPDATE event SET calendar = ?1, uid = ?2, replaces_kind = ?3, replaces_value = ?4, title = ?5, "
      "location = ?6, all_day = ?7, zone = ?8, start = ?9, end = ?10, repeats = ?11, cancelled = ?12, "
      "imported = ?13, revision = ?14, modified = ?15 WHERE id = ?16");
  bindEvent(update, event, zoneRow);
  update.bind(16, row).run();
  const MemoryCheck memory;
  insertRepetitions(database, row, event, zoneRow);
  memory.require();
}

void removeEvent(CalendarDatabase& database, std::int64_t row) {
  removeRepetitions(database, row, readEvent(database, row));
  database.prepared("DELETE FROM event WHERE id = ?1").bind(1, row).run();
}

std::optional<std::int64_t> findEvent(CalendarDatabase& database, std::int64_t calendar, std::string_view uid,
                                      const std::optional<RepetitionName>& replaces) {
  Statement& query = database.prepared(
      "SELECT id FROM event WHERE calendar = ?1 AND uid = ?2 AND replaces_kind = ?3 AND replaces_value = ?4");
  const StatementScope scope(query);
  query.bind(1, calendar).bind(2, uid);
  query.bind(3, replaces ? static_cast<int>(replaces->kind) : 0).bind(4, replaces ? replaces->value : 0);
  if (!query.step()) return std::nullopt;
  return query.integer(0);
}

std::vector<std::int64_t> replacingEvents(CalendarDatabase& database, std::int64_t calendar,
                                          std::string_view uid) {
  Statement& query = database.prepared(
      "SELECT id FROM event WHERE calendar = ?1 AND uid = ?2 AND replaces_kind > 0 "
      "ORDER BY replaces_kind, replaces_value");
  const StatementScope scope(query);
  std::vector<std::int64_t> rows;
  for (query.bind(1, calendar).bind(2, uid); query.step();) rows.push_back(query.integer(0));
  return rows;
}

EventRecord readEvent(CalendarDatabase& database, std::int64_t row) {
  Statement& query = database.prepared(
      "SELECT calendar, uid, replaces_kind, replaces_value, title, location, all_day, zone, start, end, "
      "repeats, cancelled, imported, revision, modified FROM event WHERE id = ?1");
  const StatementScope scope(query);
  if (!query.bind(1, row).step()) throw DatabaseError("the event is not in the calendar database any more");
  EventRecord event;
  event.calendar = query.integer(0);
  event.uid = query.text(1);
  if (query.integer(2) != 0) {
    event.replaces = {static_cast<RepetitionKind>(query.integer(2)), query.integer(3)};
  }
  event.title = query.text(4);
  if (!query.isNull(5)) event.location = query.text(5);
  event.isAllDay = query.integer(6) != 0;
  if (const EventZone* const zone = database.zone(query.integer(7))) event.zone = *zone;
  event.start = query.integer(8);
  event.end = query.integer(9);
  event.isCancelled = query.integer(11) != 0;
  event.isImported = query.integer(12) != 0;
  event.revision = query.integer(13);
  event.modified = query.integer(14);
  if (query.integer(10) != 0) readDates(database, row, event);
  return event;
}

}  // namespace phone
