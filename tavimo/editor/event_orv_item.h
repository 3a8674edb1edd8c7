// The editor's item, of the run-time class EKEventOrvItem. It holds the user's choice; the editor's closing
// writes it.
#pragma once

#include "platform/calendarui/ek_event_edit_item.h"
#include "platform/uikit/ui_switch.h"
#include "platform/uikit/ui_table_view_cell.h"

class EKEventOrvItem : public EKEventEditItem {
 public:
  EKEventOrvItem() = delete;

  bool showOnLockscreen() { return objc::send<"showOnLockscreen", bool>(this); }
  void setShowOnLockscreen(bool show) { objc::send<"setShowOnLockscreen:">(this, show); }
};

namespace tavimo {

/// The instance variables that hold objects; the item owns them.
inline constexpr const char* kObjectVariables[] = {"cell", "mySwitch", "disabledHelpButton",
                                                   "tapGestureRecognizer"};
/// The one that holds the user's choice, a boolean.
inline constexpr const char* kChoiceVariable = "_showOnLockscreen";

/// Takes the event's entry of the hidden-event store as the choice.
void editSetCalendarItem(EKEventOrvItem* self, SEL selector, EKCalendarItem* item, EKEventStore* store);
/// The item's one row, new at each request for index 0; nil for other indexes.
UITableViewCell* editCell(EKEventOrvItem* self, SEL selector, NSUInteger index);
UITableViewCell* editCellInSubsection(EKEventOrvItem* self, SEL selector, NSUInteger index,
                                      NSUInteger subsection);
void editSwitchChanged(EKEventOrvItem* self, SEL selector, UISwitch* sender);
bool editShowOnLockscreen(EKEventOrvItem* self, SEL selector);
void editSetShowOnLockscreen(EKEventOrvItem* self, SEL selector, bool show);
void editDealloc(EKEventOrvItem* self, SEL selector);

}  // namespace tavimo
