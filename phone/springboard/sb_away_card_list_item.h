// SBAwayCardListItem, a pass that the lock screen offers at its time and place: an item without a record.
#pragma once

#include "platform/objc/owned.h"

class NSDate;
class NSString;
class SBAwayListItem;

namespace phone {

/// A card with a title and a line of text, offered since `date`.
objc::Owned<SBAwayListItem> makeCardItem(NSString* title, NSString* message, NSDate* date);

}  // namespace phone
