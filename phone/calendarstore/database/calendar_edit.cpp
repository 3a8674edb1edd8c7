#include "phone/calendarstore/database/calendar_edit.h"

namespace phone {

namespace {

std::int64_t countEvents(CalendarDatabase& database, std::int64_t calendar) {
  Statement& query = database.prepared("SELECT count(*) FROM event WHERE calendar = ?1");
  const StatementScope scope(query);
  query.bind(1, calendar).step();
  return query.integer(0);
}

}  // namespace

void renameCalendar(CalendarDatabase& database, const CalendarRecord& calendar, const std::string& title) {
  Transaction transaction = database.beginChange();
  database.prepared("UPDATE calendar SET title = ?2 WHERE id = ?1").bind(1, calendar.id).bind(2, title).run();
  transaction.commit();
}

std::vector<std::int64_t> removeCalendars(CalendarDatabase& database,
                                          const std::vector<CalendarRecord>& calendars) {
  std::vector<std::int64_t> counts;
  Transaction transaction = database.beginChange();
  for (const CalendarRecord& calendar : calendars) {
    counts.push_back(countEvents(database, calendar.id));
    for (const char* const sql :
         {"DELETE FROM occurrence WHERE event IN (SELECT id FROM event WHERE calendar = ?1)",
          "DELETE FROM series WHERE event IN (SELECT id FROM event WHERE calendar = ?1)",
          "DELETE FROM event_date WHERE event IN (SELECT id FROM event WHERE calendar = ?1)",
          "DELETE FROM exception_rule WHERE event IN (SELECT id FROM event WHERE calendar = ?1)",
          "DELETE FROM tail WHERE base IN (SELECT id FROM event WHERE calendar = ?1)",
          "DELETE FROM event WHERE calendar = ?1", "DELETE FROM calendar WHERE id = ?1"}) {
      database.prepared(sql).bind(1, calendar.id).run();
    }
  }
  transaction.commit();
  return counts;
}

}  // namespace phone
