// Which calendar events are to be shown on the lock screen now.
#pragma once

#include "platform/foundation/ns_array.h"
#include "platform/objc/owned.h"

namespace tavimo {

/// The events from now to the end of the last day to display, in the calendar store's order, at most
/// `maxEventsToDisplay` of them when that is positive. Empty, never none, when anything is missing.
objc::Owned<NSArray> fetchCalendarEvents();

}  // namespace tavimo
