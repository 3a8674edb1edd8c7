// The names that Windows has for time zones, which calendars from there use without saying what they mean.
#pragma once

#include <optional>
#include <string>

#include "phone/calendarstore/recurrence/event_zone.h"

namespace phone {

/// The system's zone for a name such as "W. Europe Standard Time", as the Unicode CLDR pairs them: the zone
/// of the place that the CLDR names first. None for any other name.
std::optional<EventZone> zoneNamedByWindows(const std::string& name);

}  // namespace phone
