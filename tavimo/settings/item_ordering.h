// The user's ordering of item groups. The host orders its list by record date, so a group stands above or
// below the host's own notifications by dates that lie whole years ahead or back.
#pragma once

#include "platform/foundation/ns_date.h"

namespace tavimo {

/// The value of `sortPriority` that leaves the records' dates to the host.
inline constexpr NSInteger kNoOrdering = -100;

/// Reads the item-ordering file and sets `sortPriority`.
void readItemOrdering();

/// Now, moved by `sortPriority` years and as many days as put the events in query order (borrowed).
/// `position` counts from 0 over all events of the load, hidden ones included.
NSDate* orderingDate(NSUInteger position);

}  // namespace tavimo
