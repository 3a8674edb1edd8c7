// The event editor.
#pragma once

#include "platform/uikit/ui_view_controller.h"

class EKCalendarItem;
class EKEventStore;

class EKEventEditor : public UIViewController {
 public:
  EKEventEditor() = delete;

  EKCalendarItem* calendarItem() { return objc::send<"calendarItem", EKCalendarItem*>(this); }
  EKEventStore* store() { return objc::send<"store", EKEventStore*>(this); }
};
