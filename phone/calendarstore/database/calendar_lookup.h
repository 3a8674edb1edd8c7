// The calendar that a user means.
#pragma once

#include <string>
#include <vector>

#include "phone/calendarstore/database/calendar_database.h"

namespace phone {

/// The one of that identifier or, in whatever case, that name. Throws std::runtime_error, naming those that
/// there are or that are meant, when none or several fit.
CalendarRecord calendarMeant(const std::vector<CalendarRecord>& calendars, const std::string& meant);

}  // namespace phone
