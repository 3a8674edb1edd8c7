// The event view: the process's one detail item stands behind the alarm item and follows the event on screen.
#pragma once

#include "platform/calendarui/ek_event_view_controller.h"
#include "platform/foundation/ns_array.h"
#include "platform/objc/displaced.h"

namespace tavimo {

inline constinit objc::Displaced<void(EKEventViewController*, SEL, bool)> viewWillAppearDisplaced;
inline constinit objc::Displaced<void(EKEventViewController*, SEL, bool)> viewWillDisappearDisplaced;
inline constinit objc::Displaced<NSArray*(EKEventViewController*, SEL)> detailItemsDisplaced;

void viewWillAppear(EKEventViewController* self, SEL selector, bool animated);
void viewWillDisappear(EKEventViewController* self, SEL selector, bool animated);

/// The host's items, with the own one directly behind the alarm item.
NSArray* detailItems(EKEventViewController* self, SEL selector);

}  // namespace tavimo
