// The tables of the calendar database.
#pragma once

#include "phone/eventkit/sqlite.h"

namespace phone {

/// Creates the tables in a new, empty database; does nothing when they are there. Throws DatabaseError when
/// the file is a database of another kind or of another version of the phone.
void createTables(Connection& connection);

/// True when the tables are there; false for an empty database. Throws like createTables().
bool hasTables(Connection& connection);

}  // namespace phone
