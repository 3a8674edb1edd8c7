#include "phone/calendarstore/database/event_lookup.h"

#include <algorithm>

#include "phone/calendarstore/database/identifiers.h"

namespace phone {

namespace {

constexpr std::string_view kScheme = "x-apple-calevent://";

/// The event identifier in an address; any other text is given back as it is.
std::string identifierIn(const std::string& text) {
  if (!text.starts_with(kScheme)) return text;
  std::string path = text.substr(kScheme.size());
  path.resize(std::min(path.find("?o="), path.size()));
  std::replace(path.begin(), path.end(), '/', ':');
  return path;
}

NamedEvent namedEvent(const std::vector<CalendarRecord>& calendars, const EventOccurrence& event) {
  const auto calendar =
      std::find_if(calendars.begin(), calendars.end(),
                   [&event](const CalendarRecord& each) { return each.id == event.calendar; });
  if (calendar == calendars.end()) return {.title = event.title, .start = event.start};
  return {.identifier = eventIdentifier(calendar->identifier, event.uid, event.replaces),
          .title = event.title,
          .calendarTitle = calendar->title,
          .start = event.start};
}

}  // namespace

std::vector<NamedEvent> eventsNamed(CalendarDatabase& database, const std::string& text,
                                    const EventZone& phoneZone) {
  const std::vector<CalendarRecord> calendars = database.calendars();
  if (const auto event = findByIdentifier(database, identifierIn(text), phoneZone)) {
    return {namedEvent(calendars, *event)};
  }
  Statement& query = database.prepared(
      "SELECT min(id) FROM event WHERE (uid = ?1 OR title = ?1 COLLATE NOCASE) AND cancelled = 0 "
      "GROUP BY calendar, uid "
      "ORDER BY min(start), calendar, uid");
  std::vector<std::int64_t> rows;
  {
    const StatementScope scope(query);
    query.bind(1, text);
    while (query.step()) rows.push_back(query.integer(0));
  }
  std::vector<NamedEvent> events;
  events.reserve(rows.size());
  for (const std::int64_t row : rows) {
    events.push_back(namedEvent(calendars, firstOccurrence(database, row, phoneZone)));
  }
  return events;
}

std::vector<std::string> eventTitles(CalendarDatabase& database, const std::string& beginning) {
  Statement& query = database.prepared(
      "SELECT DISTINCT title FROM event WHERE substr(title, 1, length(?1)) = ?1 AND cancelled = 0 "
      "ORDER BY title LIMIT 100");
  const StatementScope scope(query);
  std::vector<std::string> titles;
  for (query.bind(1, beginning); query.step();) titles.push_back(query.text(0));
  return titles;
}

}  // namespace phone
