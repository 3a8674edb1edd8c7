// The event editor: the own item goes into its list, and its choice is written when the editor closes.
#pragma once

#include "platform/calendarui/ek_event_editor.h"
#include "platform/foundation/ns_array.h"
#include "platform/objc/displaced.h"

namespace tavimo {

inline constinit objc::Displaced<NSArray*(EKEventEditor*, SEL)> editItemsDisplaced;
inline constinit objc::Displaced<void(EKEventEditor*, SEL, NSInteger, bool)> completeWithActionDisplaced;

/// The editor's items; the first build of the list gets the own item.
NSArray* editItems(EKEventEditor* self, SEL selector);

void completeWithAction(EKEventEditor* self, SEL selector, NSInteger action, bool animated);

}  // namespace tavimo
