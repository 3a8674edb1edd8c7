// A list item for one notification record.
#pragma once

#include "platform/foundation/ns_object.h"

class BBBulletin;

class SBAwayBulletinListItem : public NSObject {
 public:
  SBAwayBulletinListItem() = delete;

  BBBulletin* activeBulletin() { return objc::send<"activeBulletin", BBBulletin*>(this); }
};
