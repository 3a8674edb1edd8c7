// The user's time zone.
#pragma once

#include <string>

namespace phone {

/// Makes the named IANA zone the default one; empty: the one that the variable TZ names, else the system's.
/// Must come before the first use of a calendar. Throws std::invalid_argument when there is no zone of that
/// name.
void setTimeZone(const std::string& name);

}  // namespace phone
