// The colour tag: a record's message, a prefix and the colour text of the event's calendar. It carries
// the colour from publishing to presentation; the cell never shows it.
#pragma once

#include "platform/bulletinboard/bb_bulletin.h"
#include "platform/uikit/ui_color.h"

namespace tavimo {

/// The tag for that colour (borrowed).
NSString* colorTag(UIColor* calendarColor);

/// The colour in the record's tag (borrowed); white, with a message, when it carries none.
UIColor* taggedColor(BBBulletin* bulletin);

}  // namespace tavimo
