// Dates as texts.
#pragma once

namespace phone {

/// Makes -[NSDate description] give a text for every date, such as "2014-03-07 10:00:00 +0100" in the default
/// zone. GNUstep's own never ends for dates before the year 1. Years count through 0 into the negative; what
/// is no calendar date at all is said in seconds. Doing it again changes nothing.
void mendDates();

}  // namespace phone
