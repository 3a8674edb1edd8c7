// The process's connection to the calendar database, shared by its event stores.
#pragma once

#include <functional>
#include <string>

#include "phone/calendarstore/database/calendar_database.h"

namespace phone {

/// The connection; nil when the phone has no calendar database yet, or when it is unusable, which
/// calendarStoreProblem() then explains. A store that was replaced or removed since is opened anew, so each
/// use sees what other processes have written. Borrowed until the next call.
CalendarDatabase* sharedDatabase();

/// The connection, with the database made if there is none. Throws DatabaseError.
CalendarDatabase& sharedDatabaseForWriting();

/// Runs the work, which must only read, on the connection and gives true. A failure, or a missing database,
/// gives false; the failure is kept for calendarStoreProblem().
bool withDatabase(const std::function<void(CalendarDatabase&)>& work);

/// The same for those who show failures instead of an answer: a failure is thrown as DatabaseError, a missing
/// database leaves the work undone.
void readDatabase(const std::function<void(CalendarDatabase&)>& work);

/// The first failure of the process, whatever went well since; empty while there was none.
const std::string& firstStoreProblem();

/// Keeps a failure for calendarStoreProblem() and firstStoreProblem().
void reportStoreProblem(const std::string& problem);

/// The zone that the phone is in.
const EventZone& phoneZone();

}  // namespace phone
