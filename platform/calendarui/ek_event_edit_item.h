// One field of the event editor.
#pragma once

#include "platform/foundation/ns_object.h"

class EKCalendarItem;
class EKEventStore;
class UITableViewCell;

class EKEventEditItem : public NSObject {
 public:
  EKEventEditItem() = delete;

  void setCalendarItem(EKCalendarItem* item, EKEventStore* store) {
    objc::send<"setCalendarItem:store:">(this, item, store);
  }
  UITableViewCell* cellForSubitem(NSUInteger index) {
    return objc::send<"cellForSubitemAtIndex:", UITableViewCell*>(this, index);
  }
  UITableViewCell* cellForSubitem(NSUInteger index, NSUInteger subsection) {
    return objc::send<"cellForSubitemAtIndex:inSubsection:", UITableViewCell*>(this, index, subsection);
  }
};
