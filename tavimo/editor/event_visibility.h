// The link between what the calendar screens edit and the hidden-event store.
#pragma once

#include "platform/eventkit/ek_calendar_item.h"

namespace tavimo {

/// The item's external URL as a text (borrowed); nil before its first save.
NSString* externalURLText(EKCalendarItem* item);

/// Whether the event with that URL text is shown on the lock screen; one without URL text is.
bool isShownOnLockScreen(NSString* urlText);

}  // namespace tavimo
