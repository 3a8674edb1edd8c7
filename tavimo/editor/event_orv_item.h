// The editor's item, of the class EKEventOrvItem. It holds the user's choice; the editor's closing writes it.
#pragma once

#include "platform/calendarui/ek_event_edit_item.h"

class EKEventOrvItem : public EKEventEditItem {
 public:
  EKEventOrvItem() = delete;

  bool showOnLockscreen() { return objc::send<"showOnLockscreen", bool>(this); }
  void setShowOnLockscreen(bool show) { objc::send<"setShowOnLockscreen:">(this, show); }
};

namespace tavimo {

/// Registers the class; does nothing in a process without the class that it extends.
void registerEventOrvItem();

}  // namespace tavimo
