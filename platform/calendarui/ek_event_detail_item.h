// One part of the event view.
#pragma once

#include "platform/foundation/ns_object.h"

class EKEvent;
class EKEventStore;
class UITableViewCell;

class EKEventDetailItem : public NSObject {
 public:
  EKEventDetailItem() = delete;

  void setEvent(EKEvent* event, EKEventStore* store) { objc::send<"setEvent:store:">(this, event, store); }
  UITableViewCell* cellForSubitem(NSUInteger index) {
    return objc::send<"cellForSubitemAtIndex:", UITableViewCell*>(this, index);
  }
};
