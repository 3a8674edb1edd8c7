// The event editor.
#pragma once

#include "platform/uikit/ui_view_controller.h"

class EKCalendarItem;
class EKEventStore;

class EKEventEditor : public UIViewController {
 public:
  EKEventEditor() = delete;

  void setCalendarItem(EKCalendarItem* item) { objc::send<"setCalendarItem:">(this, item); }
  void setStore(EKEventStore* store) { objc::send<"setStore:">(this, store); }
  void completeWithAction(NSInteger action, bool animated) {
    objc::send<"completeWithAction:animated:">(this, action, animated);
  }
  EKCalendarItem* calendarItem() { return objc::send<"calendarItem", EKCalendarItem*>(this); }
  EKEventStore* store() { return objc::send<"store", EKEventStore*>(this); }
};
