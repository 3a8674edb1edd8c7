// Telling the plug-in's own items from those of others. Host classes are compared by name, as C strings:
// these tests run for every row at every layout and count.
#pragma once

#include "platform/bulletinboard/bb_bulletin.h"
#include "platform/springboard/sb_away_bulletin_list_item.h"
#include "platform/uikit/ns_index_path.h"

namespace tavimo {

/// Whose record an identifier belongs to.
enum class Publisher {
  kOther,
  kOwn,
  /// The sibling product's reminders, which share the lock screen with the plug-in's items.
  kSibling,
};

/// The publisher that the record's identifier names. No record, and an identifier that is nil or no text,
/// belong to others.
Publisher publisherOf(BBBulletin* bulletin);

/// The record's list item when `item` is one of the class that shows records, else nil.
SBAwayBulletinListItem* asBulletinListItem(NSObject* item);

/// The item's record, or nil (borrowed): the items of some releases cannot be asked for it.
BBBulletin* recordOf(SBAwayBulletinListItem* item);

/// The publisher of an item looked up from the list; items of other classes belong to others.
Publisher publisherOfItem(NSObject* item);

/// The record of an item looked up from the list when it is the plug-in's own, else nil (borrowed). An item
/// asked a second time may answer differently: go on with this record.
BBBulletin* ownRecordOf(NSObject* item);

/// The item of that row of the current list, or nil (borrowed).
NSObject* listItemAt(NSIndexPath* indexPath);

}  // namespace tavimo
