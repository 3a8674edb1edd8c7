// The phone's clock: real, or standing still at a given time.
#pragma once

#include <optional>

namespace phone {

/// Sets the time that +[NSDate date] gives, in seconds since 1 January 2001 UTC; none: real time. Delayed
/// calls keep running on real time.
void setClock(std::optional<double> now);

}  // namespace phone
