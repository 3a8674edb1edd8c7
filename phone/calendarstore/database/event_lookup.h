// Finding an event by what a person may call it.
#pragma once

#include <string>
#include <vector>

#include "phone/calendarstore/database/occurrence_query.h"

namespace phone {

struct NamedEvent {
  std::string identifier = {};
  std::string title = {};
  std::string calendarTitle = {};
  /// The first occurrence's, an instant.
  Seconds start = 0;
};

/// The events that go by that text: an event identifier or an event's address, else a uid or a title (capital
/// letters of ASCII do not count). A series and what stands in for its repetitions is one event. Throws
/// DatabaseError.
std::vector<NamedEvent> eventsNamed(CalendarDatabase& database, const std::string& text,
                                    const EventZone& phoneZone);

/// The titles of events that begin so, each once, in order; the first hundred. Throws DatabaseError.
std::vector<std::string> eventTitles(CalendarDatabase& database, const std::string& beginning);

}  // namespace phone
