// The event view's item, of the run-time class EKEventDetailItemOrv. There is one in the process; it is
// pointed at the event of the view in use, and its switch writes that event's entry of the hidden-event store
// at once.
#pragma once

#include "platform/calendarui/ek_event_detail_item.h"
#include "platform/objc/displaced.h"
#include "platform/uikit/ui_switch.h"
#include "platform/uikit/ui_table_view_cell.h"

class EKEventDetailItemOrv : public EKEventDetailItem {
 public:
  EKEventDetailItemOrv() = delete;

  void setCellIsVisible(bool visible) { objc::send<"setCellIsVisible:">(this, visible); }
  bool showOnLockscreen() { return objc::send<"showOnLockscreen", bool>(this); }
  /// The row's switch; nil before the row was asked for.
  UISwitch* dndSwitch() { return objc::send<"dndSwitch", UISwitch*>(this); }
};

namespace tavimo {

// The item answers these three itself and never calls what it displaced.
inline constinit objc::Displaced<void(EKEventDetailItemOrv*, SEL, EKEvent*, EKEventStore*)> setEventDisplaced;
inline constinit objc::Displaced<UITableViewCell*(EKEventDetailItemOrv*, SEL, NSUInteger, NSUInteger)>
    detailCellInSubsectionDisplaced;
inline constinit objc::Displaced<UITableViewCell*(EKEventDetailItemOrv*, SEL, NSUInteger)>
    detailCellDisplaced;

/// Points the item at an event, whose entry it reads. One without URL text is shown, and flips have nothing
/// to write for it.
void setEvent(EKEventDetailItemOrv* self, SEL selector, EKEvent* event, EKEventStore* store);

UITableViewCell* detailCellInSubsection(EKEventDetailItemOrv* self, SEL selector, NSUInteger index,
                                        NSUInteger subsection);
/// The item's one row, built at the first request for index 0; nil for other indexes.
UITableViewCell* detailCell(EKEventDetailItemOrv* self, SEL selector, NSUInteger index);

/// Writes the choice for the event of the view in use. Without such a view, which no user can flip a switch
/// in, it is the event that the item was pointed at last: that of the list that was built last.
void detailSwitchChanged(EKEventDetailItemOrv* self, SEL selector, UISwitch* sender);
void showDisabledHelp(EKEventDetailItemOrv* self, SEL selector);

}  // namespace tavimo
