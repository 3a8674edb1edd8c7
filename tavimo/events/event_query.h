// Which calendar events are to be shown on the lock screen now.
#pragma once

#include "platform/eventkit/ek_event_store.h"
#include "platform/foundation/ns_array.h"
#include "platform/objc/owned.h"

namespace tavimo {

/// The events from now to the end of the last day to display, in the calendar store's order, at most
/// `maxEventsToDisplay` of them when that is positive. Empty, never nil, when anything is missing. An event
/// may lose its content with its store: the store has to live for as long as the events are read.
objc::Owned<NSArray> fetchCalendarEvents(EKEventStore* store);

}  // namespace tavimo
