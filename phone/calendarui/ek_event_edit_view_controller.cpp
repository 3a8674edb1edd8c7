#include "phone/calendarui/ek_event_edit_view_controller.h"

#include "platform/eventkit/ek_event.h"
#include "platform/eventkit/ek_event_store.h"

namespace phone {

namespace {

struct EditViewControllerState {
  objc::Owned<EKEventEditor> editor;
  NSObject* delegate = nullptr;
  bool open = true;
};

void editorDidComplete(EKEventEditViewController* self, SEL, EKEventEditor* /*editor*/, NSInteger action) {
  auto& state = stateOf<EditViewControllerState>(self);
  state.open = false;
  objc::send<"eventEditViewController:didCompleteWithAction:">(state.delegate, self, action);
}

}  // namespace

ClassDefinition ekEventEditViewController() {
  return {.name = "EKEventEditViewController",
          .superclass = "UIViewController",
          .state = state<EditViewControllerState>(),
          .methods = {getter<&EditViewControllerState::editor>("editor"),
                      method("editor:didCompleteWithAction:", editorDidComplete)}};
}

objc::Owned<EKEventEditViewController> makeEditViewController(EKEvent* event, EKEventStore* store,
                                                              NSObject* delegate) {
  auto frame = objc::make<EKEventEditViewController>();
  auto editor = objc::make<EKEventEditor>();
  editor->setCalendarItem(event);
  editor->setStore(store);
  frame->addChildViewController(editor.get());
  auto& state = stateOf<EditViewControllerState>(frame.get());
  state.editor = std::move(editor);
  state.delegate = delegate;
  return frame;
}

bool isOpen(EKEventEditViewController* frame) { return stateOf<EditViewControllerState>(frame).open; }

}  // namespace phone
