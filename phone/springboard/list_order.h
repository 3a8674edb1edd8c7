// The order of the lock screen list, and what can be asked of any of its items.
#pragma once

#include "platform/bulletinboard/bb_bulletin.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/springboard/sb_away_list_item.h"

namespace phone {

/// Puts the item before the first one that is older. Items of one date, and items without a date, which
/// stand below all others, keep the order in which they came.
void insertByDate(NSMutableArray* items, SBAwayListItem* item);

/// The item's record, or nil for an item that has no record (borrowed).
BBBulletin* bulletinOf(SBAwayListItem* item);

}  // namespace phone
