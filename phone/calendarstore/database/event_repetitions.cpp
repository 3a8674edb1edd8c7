#include "phone/calendarstore/database/event_repetitions.h"

#include <algorithm>

#include "phone/calendarstore/database/occurrence_bucket.h"
#include "phone/calendarstore/database/series_length.h"

namespace phone {

namespace {

constexpr int kAddedDate = 0;

std::int64_t bucketFor(const EventRecord& event, Seconds start, Seconds end) {
  return bucketOf(!event.zone, lengthClass(end - start));
}

void insertDate(CalendarDatabase& database, std::int64_t row, int kind, Seconds value, Seconds end) {
  database.prepared("INSERT OR REPLACE INTO event_date (event, kind, value, end) VALUES (?1, ?2, ?3, ?4)")
      .bind(1, row)
      .bind(2, kind)
      .bind(3, value)
      .bind(4, end)
      .run();
}

}  // namespace

void insertOccurrence(CalendarDatabase& database, std::int64_t row, const EventRecord& event, Seconds start,
                      Seconds end) {
  database.prepared("INSERT OR IGNORE INTO occurrence (bucket, start, event, end) VALUES (?1, ?2, ?3, ?4)")
      .bind(1, bucketFor(event, start, end))
      .bind(2, start)
      .bind(3, row)
      .bind(4, end)
      .run();
}

void removeOccurrence(CalendarDatabase& database, std::int64_t row, const EventRecord& event, Seconds start,
                      Seconds end) {
  database.prepared("DELETE FROM occurrence WHERE bucket = ?1 AND start = ?2 AND event = ?3")
      .bind(1, bucketFor(event, start, end))
      .bind(2, start)
      .bind(3, row)
      .run();
}

Seconds lastEnd(const EventRecord& event, const RecurrenceRule& rule, Seconds lastWallStart) {
  const Seconds last = std::min(rule.lastStart(), lastWallStart);
  if (last >= kEndless) return kEndless;
  return SeriesLength::of(event).endAfter(event.toStored(last), event.zone ? &*event.zone : nullptr);
}

void insertRepetitions(CalendarDatabase& database, std::int64_t row, const EventRecord& event,
                       std::int64_t zoneRow) {
  if (event.isCancelled || event.changesLater()) return;
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
  for (const ExceptionRule& exception : event.exceptionRules) {
    database.prepared("INSERT OR IGNORE INTO exception_rule (event, wall_start, rule) VALUES (?1, ?2, ?3)")
        .bind(1, row)
        .bind(2, exception.wallStart)
        .bind(3, exception.rule)
        .run();
  }
  for (const AddedDate& date : event.added) {
    insertDate(database, row, kAddedDate, date.start, date.end);
    insertOccurrence(database, row, event, date.start, date.end);
  }
}

void removeRepetitions(CalendarDatabase& database, std::int64_t row, const EventRecord& event) {
  removeOccurrence(database, row, event, event.start, event.end);
  for (const AddedDate& date : event.added) removeOccurrence(database, row, event, date.start, date.end);
  if (!event.repeats()) return;
  database.prepared("DELETE FROM series WHERE event = ?1").bind(1, row).run();
  database.prepared("DELETE FROM event_date WHERE event = ?1").bind(1, row).run();
  database.prepared("DELETE FROM exception_rule WHERE event = ?1").bind(1, row).run();
  database.prepared("DELETE FROM tail WHERE base = ?1").bind(1, row).run();
}

void readRepetitions(CalendarDatabase& database, std::int64_t row, EventRecord& event) {
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
  Statement& exceptions = database.prepared(
      "SELECT wall_start, rule FROM exception_rule WHERE event = ?1 ORDER BY wall_start, rule");
  const StatementScope exceptionsScope(exceptions);
  for (exceptions.bind(1, row); exceptions.step();) {
    event.exceptionRules.push_back({exceptions.integer(0), exceptions.text(1)});
  }
}

}  // namespace phone
