// EKEventEditViewController: the frame around an event editor, with its bar. It holds the editor, which names
// it as its parent, and tells its delegate how the editor closed.
#pragma once

#include "phone/calendarui/edit_action.h"
#include "phone/objc/class_definition.h"
#include "platform/calendarui/ek_event_editor.h"

class EKEvent;
class EKEventStore;

class EKEventEditViewController : public UIViewController {
 public:
  EKEventEditViewController() = delete;

  /// None before an event is set.
  EKEventEditor* editor() { return objc::send<"editor", EKEventEditor*>(this); }
};

namespace phone {

ClassDefinition ekEventEditViewController();

/// A frame with an editor for that event. `delegate` (borrowed for as long as the frame lives, may be nil)
/// is sent eventEditViewController:didCompleteWithAction: when the editor closes.
objc::Owned<EKEventEditViewController> makeEditViewController(EKEvent* event, EKEventStore* store,
                                                              NSObject* delegate);

/// False once the editor has closed.
bool isOpen(EKEventEditViewController* frame);

}  // namespace phone
