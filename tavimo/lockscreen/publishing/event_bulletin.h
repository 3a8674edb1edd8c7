// One calendar event as a notification record.
#pragma once

#include "platform/bulletinboard/bb_bulletin.h"
#include "platform/eventkit/ek_event.h"
#include "platform/objc/owned.h"

namespace tavimo {

/// A record for the event at that position of the query's result; nil when the host has no such class.
objc::Owned<BBBulletin> bulletinForEvent(EKEvent* event, NSUInteger position);

}  // namespace tavimo
