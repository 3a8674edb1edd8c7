// Writing calendars of the phone's database as calendar files, which an import makes the same events of.
#pragma once

#include <string>

#include "phone/calendarstore/database/calendar_database.h"

namespace phone {

struct ExportedCalendar {
  /// A calendar object in UTF-8, lines ending as the format wants them.
  std::string text;
  std::size_t events = 0;
};

/// The calendar with its name, its colour, its time zones and all its events. `now` is an instant. Throws
/// DatabaseError.
ExportedCalendar exportCalendar(CalendarDatabase& database, const CalendarRecord& calendar, Seconds now);

}  // namespace phone
