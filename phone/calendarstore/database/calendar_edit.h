// Changes of whole calendars that are made on the phone.
#pragma once

#include <vector>

#include "phone/calendarstore/database/calendar_database.h"

namespace phone {

/// Gives the calendar another name. Its identifier stays, and with it what the phone remembers of its events;
/// an import under the old name still finds it. Throws DatabaseError with nothing changed.
void renameCalendar(CalendarDatabase& database, const CalendarRecord& calendar, const std::string& title);

/// Removes the calendars with all their events, and gives the number of each one's events. Throws
/// DatabaseError with nothing changed.
std::vector<std::int64_t> removeCalendars(CalendarDatabase& database,
                                          const std::vector<CalendarRecord>& calendars);

}  // namespace phone
