#include "phone/calendarui/ek_event_view_controller.h"

#include "phone/calendarui/detail_items.h"
#include "phone/calendarui/ek_event_edit_view_controller.h"
#include "platform/calendarui/ek_event_detail_item.h"
#include "platform/eventkit/ek_event.h"
#include "platform/eventkit/ek_event_store.h"
#include "platform/foundation/ns_mutable_array.h"

namespace phone {

namespace {

struct EventViewState {
  objc::Owned<EKEvent> event;
  objc::Owned<EKEventStore> store;
  /// None when the list must be built before the view is shown.
  objc::Owned<NSArray> items;
  ItemTable table;
};

NSArray* detailItems(EKEventViewController* self, SEL) {
  const auto& state = stateOf<EventViewState>(self);
  NSMutableArray* const items = NSMutableArray::array();
  for (const ItemPlace& place : detailItemPlaces()) {
    auto item = objc::Owned<EKEventDetailItem>::adopt(
        objc::send<"init", EKEventDetailItem*>(objc::send<"alloc", id>(objc_getClass(place.className))));
    item->setEvent(state.event.get(), state.store.get());
    items->addObject(item.get());
  }
  return items;
}

void viewWillAppear(EKEventViewController* self, SEL selector, bool animated) {
  objc::sendSuper(objc::classOf<UIViewController>(), self, selector, animated);
  auto& state = stateOf<EventViewState>(self);
  if (!state.items) state.items = objc::Owned<NSArray>::retain(objc::send<"_items", NSArray*>(self));
  state.table.load(groupItems(state.items.get(), detailItemPlaces()));
}

void editorDidComplete(EKEventViewController* self, SEL, EKEventEditViewController* frame, NSInteger action) {
  auto& state = stateOf<EventViewState>(self);
  switch (static_cast<EditAction>(action)) {
    case EditAction::kSaved:
      state.event = objc::Owned<EKEvent>::retain(static_cast<EKEvent*>(frame->editor()->calendarItem()));
      state.items = {};
      break;
    case EditAction::kDeleted:
      state.event = {};
      state.items = {};
      break;
    case EditAction::kCancelled:
      break;
  }
}

}  // namespace

ClassDefinition ekEventViewController() {
  return {.name = "EKEventViewController",
          .superclass = "UIViewController",
          .state = state<EventViewState>(),
          .methods = {property<&EventViewState::event, "event">(), method("_items", detailItems),
                      method("viewWillAppear:", viewWillAppear),
                      method("eventEditViewController:didCompleteWithAction:", editorDidComplete)}};
}

objc::Owned<EKEventViewController> makeEventViewController(EKEvent* event, EKEventStore* store) {
  auto view = objc::make<EKEventViewController>();
  auto& state = stateOf<EventViewState>(view.get());
  state.event = objc::Owned<EKEvent>::retain(event);
  state.store = objc::Owned<EKEventStore>::retain(store);
  return view;
}

const ItemTable& tableOf(EKEventViewController* view) { return stateOf<EventViewState>(view).table; }

bool hasEvent(EKEventViewController* view) { return bool(stateOf<EventViewState>(view).event); }

}  // namespace phone
