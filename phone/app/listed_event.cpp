#include "phone/app/listed_event.h"

#include <nlohmann/json.hpp>
#include <stdexcept>

#include "phone/app/calendar_choice.h"
#include "phone/app/hidden_event_list.h"
#include "phone/app/local_time.h"
#include "phone/calendarstore/database/identifiers.h"
#include "phone/calendarstore/database/next_occurrence.h"
#include "phone/eventkit/store_connection.h"

namespace phone {

using Json = nlohmann::ordered_json;

ListedEvent listedEvent(const EventOccurrence& occurrence, const CalendarRecord& calendar,
                        const HiddenEvents& hiddenEvents) {
  const std::string identifier = eventIdentifier(calendar.identifier, occurrence.uid, occurrence.replaces);
  return {.occurrence = occurrence,
          .identifier = identifier,
          .calendarTitle = calendar.title,
          .calendarColor = colorText(calendar.color),
          .isHidden = hiddenEvents.contains(identifier)};
}

ListedEvent nextOfEvent(const std::string& identifier, Seconds now) {
  std::optional<ListedEvent> listed;
  readDatabase([&](CalendarDatabase& database) {
    const auto first = findByIdentifier(database, identifier, phoneZone());
    const auto name = parseEventIdentifier(identifier);
    if (!first || !name) return;
    const auto calendar = database.calendarWithIdentifier(name->calendarIdentifier);
    if (!calendar) return;
    const EventOccurrence next = nextOccurrence(database, first->event, now, phoneZone());
    listed = listedEvent(next, *calendar, HiddenEvents());
  });
  if (!listed) throw std::runtime_error("there is no event \"" + identifier + "\"");
  return *listed;
}

Json jsonOf(const ListedEvent& event, const cctz::time_zone& zone) {
  const EventOccurrence& occurrence = event.occurrence;
  return {{"identifier", event.identifier},
          {"title", occurrence.title},
          {"location", occurrence.location ? Json(*occurrence.location) : Json(nullptr)},
          {"start", isoTime(static_cast<double>(occurrence.start), zone)},
          {"end", isoTime(static_cast<double>(occurrence.end), zone)},
          {"allDay", occurrence.isAllDay},
          {"repeats", occurrence.repeats},
          {"calendar", event.calendarTitle},
          {"isHidden", event.isHidden}};
}

}  // namespace phone
