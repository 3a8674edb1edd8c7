// A list item for one notification record.
#pragma once

#include "platform/springboard/sb_away_list_item.h"

class BBBulletin;

class SBAwayBulletinListItem : public SBAwayListItem {
 public:
  SBAwayBulletinListItem() = delete;

  /// Takes over the result of alloc.
  SBAwayBulletinListItem* initWithBulletin(BBBulletin* bulletin, NSObject* observer) {
    return objc::send<"initWithBulletin:andObserver:", SBAwayBulletinListItem*>(this, bulletin, observer);
  }
  BBBulletin* activeBulletin() { return objc::send<"activeBulletin", BBBulletin*>(this); }
};
