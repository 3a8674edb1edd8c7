// An event as the verbs list it, for people and as JSON.
#pragma once

#include <nlohmann/json_fwd.hpp>
#include <string>

#include "phone/calendarstore/database/occurrence_query.h"

namespace cctz {
class time_zone;
}

namespace phone {

class HiddenEvents;

struct ListedEvent {
  EventOccurrence occurrence;
  std::string identifier;
  std::string calendarTitle;
  /// "#RRGGBB"
  std::string calendarColor;
  bool isHidden = false;
};

ListedEvent listedEvent(const EventOccurrence& occurrence, const CalendarRecord& calendar,
                        const HiddenEvents& hiddenEvents);

/// The event of that identifier, as the occurrence that is next at that instant. Throws std::runtime_error
/// when there is none.
ListedEvent nextOfEvent(const std::string& identifier, Seconds now);

/// Times are written in that zone.
nlohmann::ordered_json jsonOf(const ListedEvent& event, const cctz::time_zone& zone);

}  // namespace phone
