// Which calendars are searched: what the Calendar app shows, or what the selection file names.
#pragma once

#include "platform/eventkit/ek_event_store.h"
#include "platform/foundation/ns_array.h"

namespace tavimo {

/// The calendars to search (borrowed); it may be empty. Nil when the store is not to be searched at all.
NSArray* selectedCalendars(EKEventStore* store);

}  // namespace tavimo
