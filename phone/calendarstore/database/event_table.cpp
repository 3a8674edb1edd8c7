#include "phone/calendarstore/database/event_table.h"

#include "phone/calendarstore/database/event_repetitions.h"
#include "phone/calendarstore/memory_check.h"

namespace phone {

namespace {

/// What replaces_kind adds for events that change all later repetitions, too.
constexpr int kAndLater = 3;

bool hasChangesOfLater(CalendarDatabase& database, const EventRecord& event) {
  Statement& query =
      database.prepared("SELECT 1 FROM event WHERE calendar = ?1 AND uid = ?2 AND replaces_kind > 3 LIMIT 1");
  const StatementScope scope(query);
  return query.bind(1, event.calendar).bind(2, event.uid).step();
}

/// Tails depend on the series and on the events that change its later repetitions, and on nothing else.
void markTails(CalendarDatabase& database, const EventRecord& event) {
  const bool matters =
      event.replaces ? event.changesLater() : event.repeats() && hasChangesOfLater(database, event);
  if (matters) database.markSeries(event.calendar, event.uid);
}

void bindEvent(Statement& statement, const EventRecord& event, std::int64_t zoneRow) {
  statement.bind(1, event.calendar).bind(2, event.uid);
  statement.bind(3, storedKind(event.replaces));
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

}  // namespace

int storedKind(const std::optional<ReplacedRepetition>& replaces) {
  return replaces ? static_cast<int>(replaces->kind) + (replaces->andLater ? kAndLater : 0) : 0;
}

std::optional<ReplacedRepetition> replacedRepetition(std::int64_t storedKind, Seconds value) {
  if (storedKind == 0) return std::nullopt;
  const bool andLater = storedKind > kAndLater;
  return ReplacedRepetition{{static_cast<RepetitionKind>(storedKind - (andLater ? kAndLater : 0)), value},
                            andLater};
}

bool sameContent(const EventRecord& left, const EventRecord& right) {
  const auto zoneText = [](const EventRecord& event) {
    return event.zone ? event.zone->name() + "\n" + event.zone->definition() : std::string();
  };
  return left.title == right.title && left.location == right.location && left.isAllDay == right.isAllDay &&
         left.isCancelled == right.isCancelled && left.start == right.start && left.end == right.end &&
         left.calendarDays == right.calendarDays && zoneText(left) == zoneText(right) &&
         left.rules == right.rules && left.excluded == right.excluded && left.added == right.added &&
         left.exceptionRules == right.exceptionRules;
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
  markTails(database, event);
  return row;
}

std::optional<std::int64_t> insertEvent(CalendarDatabase& database, const EventRecord& event) {
  return insertEvent(database, event, database.rowOf(event.zone));
}

void replaceEvent(CalendarDatabase& database, std::int64_t row, const EventRecord& event) {
  const EventRecord before = readEvent(database, row);
  markTails(database, before);
  removeRepetitions(database, row, before);
  const std::int64_t zoneRow = database.rowOf(event.zone);
  Statement& update = database.prepared(
      "UPDATE event SET calendar = ?1, uid = ?2, replaces_kind = ?3, replaces_value = ?4, title = ?5, "
      "location = ?6, all_day = ?7, zone = ?8, start = ?9, end = ?10, repeats = ?11, cancelled = ?12, "
      "imported = ?13, revision = ?14, modified = ?15, changed_from = NULL WHERE id = ?16");
  bindEvent(update, event, zoneRow);
  update.bind(16, row).run();
  const MemoryCheck memory;
  insertRepetitions(database, row, event, zoneRow);
  memory.require();
  markTails(database, event);
}

void removeEvent(CalendarDatabase& database, std::int64_t row) {
  const EventRecord before = readEvent(database, row);
  markTails(database, before);
  removeRepetitions(database, row, before);
  database.prepared("DELETE FROM event WHERE id = ?1").bind(1, row).run();
}

std::optional<std::int64_t> findEvent(CalendarDatabase& database, std::int64_t calendar, std::string_view uid,
                                      const std::optional<ReplacedRepetition>& replaces) {
  Statement& query = database.prepared(
      "SELECT id FROM event WHERE calendar = ?1 AND uid = ?2 AND replaces_kind = ?3 AND replaces_value = ?4");
  const StatementScope scope(query);
  query.bind(1, calendar).bind(2, uid);
  query.bind(3, storedKind(replaces)).bind(4, replaces ? replaces->value : 0);
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
  event.replaces = replacedRepetition(query.integer(2), query.integer(3));
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
  if (query.integer(10) != 0) readRepetitions(database, row, event);
  return event;
}

}  // namespace phone
