// Writes an event of the database as a VEVENT, so that reading it gives the same event again.
#pragma once

#include <optional>
#include <string>

#include "phone/calendarstore/database/event_record.h"
#include "phone/calendarstore/ics/ics_zone_list.h"

namespace phone {

/// The lines of the event. `seriesZone` is the zone of the series that the event stands in for a repetition
/// of; none if it is no such event, or the series has none. `now` is the stamp of an event that does not know
/// when it was changed.
std::string icsEventText(const EventRecord& event, const std::optional<EventZone>& seriesZone, Seconds now,
                         IcsZoneList& zones);

}  // namespace phone
