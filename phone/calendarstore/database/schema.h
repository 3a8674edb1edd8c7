// The tables of the calendar database.
#pragma once

#include <string>

#include "phone/calendarstore/database/sqlite.h"

namespace phone {

/// The content of a new database's file, with the tables and nothing in them.
std::string newDatabaseContent();

/// Makes sure that the tables are there; a database of an earlier version of the phone gets those that it
/// lacks. Throws DatabaseError when the file is empty, or a database of another kind or of a later version of
/// the phone.
void requireTables(Connection& connection);

}  // namespace phone
