#include "phone/app/resolve_event.h"

#include <stdexcept>
#include <vector>

#include "phone/app/local_time.h"
#include "phone/calendarstore/database/event_lookup.h"
#include "phone/eventkit/store_connection.h"

namespace phone {

namespace {

constexpr std::size_t kMaxNamed = 10;

std::string namesOf(const std::vector<NamedEvent>& events) {
  const cctz::time_zone zone = zoneNamed(phoneZone().name());
  std::string names;
  for (std::size_t i = 0; i < events.size() && i < kMaxNamed; ++i) {
    const NamedEvent& event = events[i];
    names += "\n  " + event.identifier + "  " + longTime(static_cast<double>(event.start), zone) + ", " +
             event.calendarTitle;
  }
  if (events.size() > kMaxNamed) names += "\n  and " + std::to_string(events.size() - kMaxNamed) + " more";
  return names;
}

}  // namespace

std::string resolveEvent(const std::string& text) {
  std::vector<NamedEvent> events;
  readDatabase([&](CalendarDatabase& database) { events = eventsNamed(database, text, phoneZone()); });
  if (events.empty()) {
    throw std::runtime_error("there is no event \"" + text +
                             "\"; \"phone event list\" shows the coming ones");
  }
  if (events.size() > 1) {
    throw std::runtime_error("several events are called \"" + text +
                             "\"; name one by its identifier:" + namesOf(events));
  }
  return events.front().identifier;
}

}  // namespace phone
