// Events that change one repetition of a series and all later ones. What they make of the repetitions, the
// tails of the series, is worked out when one of them or the series comes into the database, so that a search
// finds tails as quickly as anything else, and finds the same whatever range it is for.
#pragma once

#include <string>

#include "phone/calendarstore/database/calendar_database.h"

namespace phone {

/// So many stretches of rules a series may fall into: its rules times the events that change it from some
/// repetition on. What goes beyond, from the latest, has no effect.
inline constexpr std::size_t kMaxTails = 10'000;

/// Works the tails of the series with that uid out anew. Each reaches from the repetition that its event
/// stands in for to the one before the next such event's.
void settleTails(CalendarDatabase& database, std::int64_t calendar, const std::string& uid);

}  // namespace phone
