#include "phone/calendarstore/ics/calendar_export.h"

#include <cstdio>

#include "phone/calendarstore/database/event_table.h"
#include "phone/calendarstore/ics/ics_event_text.h"
#include "phone/calendarstore/ics/ics_text.h"

namespace phone {

namespace {

std::string colorText(std::uint32_t color) {
  char text[10];
  const bool isOpaque = (color & 0xFF) == 0xFF;
  std::snprintf(text, sizeof text, isOpaque ? "#%06X" : "#%08X", isOpaque ? color >> 8 : color);
  return text;
}

std::vector<std::int64_t> rowsOf(CalendarDatabase& database, const CalendarRecord& calendar) {
  Statement& query = database.prepared("SELECT id FROM event WHERE calendar = ?1 ORDER BY id");
  const StatementScope scope(query);
  std::vector<std::int64_t> rows;
  for (query.bind(1, calendar.id); query.step();) rows.push_back(query.integer(0));
  return rows;
}

/// The zone of the series that the event stands in for a repetition of.
std::optional<EventZone> seriesZone(CalendarDatabase& database, const EventRecord& event) {
  if (!event.replaces) return std::nullopt;
  Statement& query =
      database.prepared("SELECT zone FROM event WHERE calendar = ?1 AND uid = ?2 AND replaces_kind = 0");
  const StatementScope scope(query);
  if (!query.bind(1, event.calendar).bind(2, event.uid).step()) return event.zone;
  const EventZone* const zone = database.zone(query.integer(0));
  return zone == nullptr ? std::nullopt : std::optional(*zone);
}

}  // namespace

ExportedCalendar exportCalendar(CalendarDatabase& database, const CalendarRecord& calendar, Seconds now) {
  ExportedCalendar exported;
  IcsZoneList zones;
  std::string events;
  for (const std::int64_t row : rowsOf(database, calendar)) {
    const EventRecord event = readEvent(database, row);
    events += icsEventText(event, seriesZone(database, event), now, zones);
    ++exported.events;
  }
  exported.text = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Tavimo//phone//EN\r\n" +
                  textLine("X-WR-CALNAME", calendar.title) +
                  textLine("X-APPLE-CALENDAR-COLOR", colorText(calendar.color)) + zones.definitions() +
                  events + "END:VCALENDAR\r\n";
  return exported;
}

}  // namespace phone
