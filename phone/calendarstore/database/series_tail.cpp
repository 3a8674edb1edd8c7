#include "phone/calendarstore/database/series_tail.h"

#include <algorithm>

#include "phone/calendarstore/database/event_repetitions.h"
#include "phone/calendarstore/database/event_table.h"
#include "phone/calendarstore/memory_check.h"

namespace phone {

namespace {

/// An event that changes later repetitions, and the wall times of the series that it is about.
struct LaterChange {
  std::int64_t row;
  EventRecord event;
  Seconds first;
  Seconds last = kEndless;

  /// From the wall time of a repetition to that of what takes its place.
  Seconds shift() const { return event.wallStart() - first; }
};

std::vector<std::int64_t> rowsOfLaterChanges(CalendarDatabase& database, std::int64_t calendar,
                                             const std::string& uid) {
  Statement& query =
      database.prepared("SELECT id FROM event WHERE calendar = ?1 AND uid = ?2 AND replaces_kind > 3");
  const StatementScope scope(query);
  std::vector<std::int64_t> rows;
  for (query.bind(1, calendar).bind(2, uid); query.step();) rows.push_back(query.integer(0));
  return rows;
}

/// Without a series, an event takes place as it says itself.
void letStandAlone(CalendarDatabase& database, std::int64_t row) {
  const EventRecord event = readEvent(database, row);
  if (!event.isCancelled) insertOccurrence(database, row, event, event.start, event.end);
}

class TailWriter {
 public:
  TailWriter(CalendarDatabase& database, std::int64_t row, EventRecord series)
      : database_(database), row_(row), series_(std::move(series)), zoneRow_(database.rowOf(series_.zone)) {}

  void write(const std::vector<std::int64_t>& changing) {
    for (const std::int64_t row : changing) {
      EventRecord event = readEvent(database_, row);
      removeOccurrence(database_, row, event, event.start, event.end);
      const Seconds first = series_.wallOf(*event.replaces);
      changes_.push_back({row, std::move(event), first});
    }
    std::sort(changes_.begin(), changes_.end(), [](const auto& left, const auto& right) {
      return std::tie(left.first, left.row) < std::tie(right.first, right.row);
    });
    changes_.resize(
        std::min(changes_.size(), kMaxTails / std::max<std::size_t>(series_.rules.size(), 1) + 1));
    for (std::size_t i = 0; i + 1 < changes_.size(); ++i) changes_[i].last = changes_[i + 1].first - 1;
    for (const LaterChange& change : changes_) writeRules(change);
    writeDate(series_.start);
    for (const AddedDate& date : series_.added) writeDate(date.start);
    endSeries(changes_.empty() ? kEndless : changes_.front().first);
  }

 private:
  void insert(const LaterChange& change, const std::string& rule, Seconds first, Seconds last) {
    // A series that is changed and then called off has no later repetitions.
    if (change.event.isCancelled) return;
    Statement& statement = database_.prepared(
        "INSERT INTO tail (event, zone, duration, base, base_zone, base_wall_start, rule, first, last, "
        "shift, "
        "start, last_end) VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12)");
    const EventRecord& event = change.event;
    statement.bind(1, change.row).bind(2, database_.rowOf(event.zone)).bind(3, event.duration());
    statement.bind(4, row_).bind(5, zoneRow_).bind(6, series_.wallStart()).bind(7, rule);
    statement.bind(8, first).bind(9, last).bind(10, change.shift());
    statement.bind(11, event.toStored(first + change.shift()));
    statement.bind(12,
                   last >= kEndless ? kEndless : event.toStored(last + change.shift()) + event.duration());
    statement.run();
  }

  void writeRules(const LaterChange& change) {
    // The repetition that it stands in for, whether or not a rule makes it.
    insert(change, "", change.first, change.first);
    for (const std::string& text : series_.rules) {
      const RecurrenceRule rule = RecurrenceRule::fromStored(text, series_.wallStart());
      const Seconds last = std::min(change.last, rule.lastStart());
      if (last >= change.first) insert(change, text, change.first, last);
    }
  }

  void writeDate(Seconds stored) {
    const Seconds wall = series_.toWall(stored);
    const auto after =
        std::upper_bound(changes_.begin(), changes_.end(), wall,
                         [](Seconds time, const LaterChange& change) { return time < change.first; });
    if (after != changes_.begin() && std::prev(after)->first != wall)
      insert(*std::prev(after), "", wall, wall);
  }

  /// Nothing of the series itself takes place from that wall time on.
  void endSeries(Seconds wall) {
    Statement& update = database_.prepared("UPDATE event SET changed_from = ?2 WHERE id = ?1");
    update.bind(1, row_);
    if (wall < kEndless) {
      update.bind(2, wall);
    } else {
      update.bindNull(2);
    }
    update.run();
    for (const std::string& text : series_.rules) {
      const RecurrenceRule rule = RecurrenceRule::fromStored(text, series_.wallStart());
      database_.prepared("UPDATE series SET last_end = ?3 WHERE event = ?1 AND rule = ?2")
          .bind(1, row_)
          .bind(2, text)
          .bind(3, lastEnd(series_, rule, wall - 1))
          .run();
    }
  }

  CalendarDatabase& database_;
  std::int64_t row_;
  EventRecord series_;
  std::int64_t zoneRow_;
  std::vector<LaterChange> changes_;
};

}  // namespace

void settleTails(CalendarDatabase& database, std::int64_t calendar, const std::string& uid) {
  const std::vector<std::int64_t> changing = rowsOfLaterChanges(database, calendar, uid);
  const auto row = findEvent(database, calendar, uid, std::nullopt);
  EventRecord series;
  if (row) {
    series = readEvent(database, *row);
    database.prepared("DELETE FROM tail WHERE base = ?1").bind(1, *row).run();
  }
  if (series.repeats()) {
    const MemoryCheck memory;
    TailWriter(database, *row, std::move(series)).write(changing);
    memory.require();
  } else {
    for (const std::int64_t change : changing) letStandAlone(database, change);
  }
}

}  // namespace phone
