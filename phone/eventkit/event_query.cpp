#include "phone/eventkit/event_query.h"

#include <algorithm>
#include <tuple>

#include "phone/eventkit/identifiers.h"

namespace phone {

namespace {

/// The event's row as an occurrence, its times still to be set by placeAt(); none if the row is gone.
std::optional<EventOccurrence> readRow(CalendarDatabase& database, std::int64_t row, const EventZone*& zone) {
  Statement& query = database.prepared(
      "SELECT calendar, uid, replaces_kind, replaces_value, title, location, all_day, repeats, zone, start, "
      "end "
      "FROM event WHERE id = ?1");
  const StatementScope scope(query);
  if (!query.bind(1, row).step()) return std::nullopt;
  EventOccurrence event{.event = row, .calendar = query.integer(0), .uid = query.text(1)};
  if (query.integer(2) != 0) {
    event.replaces = {static_cast<RepetitionKind>(query.integer(2)), query.integer(3)};
  }
  event.title = query.text(4);
  if (!query.isNull(5)) event.location = query.text(5);
  event.isAllDay = query.integer(6) != 0;
  event.repeats = query.integer(7) != 0;
  zone = database.zone(query.integer(8));
  event.start = query.integer(9);
  event.end = query.integer(10);
  return event;
}

/// Sets the times of an occurrence from those of the database.
void placeAt(EventOccurrence& event, Seconds storedStart, Seconds storedEnd, const EventZone* zone,
             const EventZone& phoneZone) {
  event.storedStart = storedStart;
  event.start = zone == nullptr ? phoneZone.toInstant(storedStart) : storedStart;
  event.end = zone == nullptr ? phoneZone.toInstant(storedEnd) : storedEnd;
  if (event.isAllDay) event.end = phoneZone.toInstant(storedEnd - 1);
}

/// Whether the repetition is left out of its series: by name, or because another event stands in for it.
bool isLeftOut(CalendarDatabase& database, const EventOccurrence& event, const EventZone* zone) {
  const Seconds wall = zone == nullptr ? event.storedStart : zone->toWall(event.storedStart);
  const auto bindNames = [&](Statement& query, int parameter) {
    // An event without a zone has no instant of its own; its wall time serves for both.
    query.bind(parameter, event.storedStart)
        .bind(parameter + 1, wall)
        .bind(parameter + 2, dayOf(wall) * kSecondsPerDay);
  };
  Statement& named = database.prepared(
      "SELECT 1 FROM event_date WHERE event = ?1 AND "
      "((kind = 1 AND value = ?2) OR (kind = 2 AND value = ?3) OR (kind = 3 AND value = ?4))");
  const StatementScope namedScope(named);
  bindNames(named.bind(1, event.event), 2);
  if (named.step()) return true;
  Statement& replaced = database.prepared(
      "SELECT 1 FROM event WHERE calendar = ?1 AND uid = ?2 AND "
      "((replaces_kind = 1 AND replaces_value = ?3) OR (replaces_kind = 2 AND replaces_value = ?4) OR "
      "(replaces_kind = 3 AND replaces_value = ?5))");
  const StatementScope replacedScope(replaced);
  bindNames(replaced.bind(1, event.calendar).bind(2, event.uid), 3);
  return replaced.step();
}

}  // namespace

std::vector<EventOccurrence> occurrencesInRange(CalendarDatabase& database, TimeRange range,
                                                const std::vector<std::int64_t>& calendars,
                                                const EventZone& phoneZone) {
  std::vector<EventOccurrence> found;
  if (calendars.empty()) return found;
  std::optional<EventOccurrence> event;
  const EventZone* zone = nullptr;
  std::int64_t row = 0;
  for (const OccurrenceCandidate& candidate : collectCandidates(database, range, phoneZone)) {
    if (candidate.event != row) {
      row = candidate.event;
      event = readRow(database, row, zone);
      if (event && std::find(calendars.begin(), calendars.end(), event->calendar) == calendars.end()) {
        event.reset();
      }
    }
    if (!event) continue;
    placeAt(*event, candidate.start, candidate.end, zone, phoneZone);
    if (!overlaps(range, event->start, event->isAllDay ? event->end + 1 : event->end)) continue;
    if (event->repeats && isLeftOut(database, *event, zone)) continue;
    found.push_back(*event);
  }
  std::sort(found.begin(), found.end(), [](const EventOccurrence& left, const EventOccurrence& right) {
    return std::tie(left.start, left.title, left.calendar, left.uid) <
           std::tie(right.start, right.title, right.calendar, right.uid);
  });
  return found;
}

EventOccurrence firstOccurrence(CalendarDatabase& database, std::int64_t row, const EventZone& phoneZone) {
  const EventZone* zone = nullptr;
  auto event = readRow(database, row, zone);
  if (!event) throw DatabaseError("the event is not in the calendar database any more");
  placeAt(*event, event->start, event->end, zone, phoneZone);
  return *event;
}

std::optional<EventOccurrence> findByIdentifier(CalendarDatabase& database, const std::string& identifier,
                                                const EventZone& phoneZone) {
  const auto name = parseEventIdentifier(identifier);
  if (!name) return std::nullopt;
  const auto calendar = database.calendarWithIdentifier(name->calendarIdentifier);
  if (!calendar) return std::nullopt;
  // The identifier does not say how the replaced repetition was named, only its seconds.
  Statement& query = database.prepared(
      "SELECT id FROM event WHERE calendar = ?1 AND uid = ?2 AND (replaces_kind > 0) = ?3 AND "
      "replaces_value = ?4 AND cancelled = 0");
  std::int64_t row = 0;
  {
    const StatementScope scope(query);
    query.bind(1, calendar->id).bind(2, name->uid).bind(3, name->replaced ? 1 : 0);
    if (!query.bind(4, name->replaced.value_or(0)).step()) return std::nullopt;
    row = query.integer(0);
  }
  return firstOccurrence(database, row, phoneZone);
}

}  // namespace phone
