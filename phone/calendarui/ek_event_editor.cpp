#include "phone/calendarui/ek_event_editor.h"

#include "phone/calendarui/edit_items.h"
#include "platform/calendarui/ek_event_edit_item.h"
#include "platform/eventkit/ek_event.h"
#include "platform/eventkit/ek_event_store.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/uikit/ui_alert_view.h"

namespace phone {

namespace {

// Names of the instance variables are the phone's: plug-ins reach them by name.
constexpr char kEditItems[] = "_editItems";
constexpr char kOrderedEditItems[] = "_orderedEditItems";

struct EventEditorState {
  objc::Owned<EKCalendarItem> calendarItem;
  objc::Owned<EKEventStore> store;
  ItemTable table;
};

NSMutableArray* arrayOf(const std::vector<NSObject*>& objects) {
  NSMutableArray* const array = NSMutableArray::array();
  for (NSObject* const object : objects) array->addObject(object);
  return array;
}

NSArray* editItems(EKEventEditor* self, SEL) {
  if (auto* const built = objc::readIvar<NSArray>(self, kEditItems)) return built;
  const auto& state = stateOf<EventEditorState>(self);
  const std::vector<ItemPlace> places = editItemPlaces();
  NSMutableArray* const items = NSMutableArray::array();
  for (const ItemPlace& place : places) {
    auto item = objc::Owned<EKEventEditItem>::adopt(
        objc::send<"init", EKEventEditItem*>(objc::send<"alloc", id>(objc_getClass(place.className))));
    item->setCalendarItem(state.calendarItem.get(), state.store.get());
    items->addObject(item.get());
  }
  objc::writeIvar<NSArray>(self, kEditItems, items);
  NSMutableArray* const ordered = NSMutableArray::array();
  for (const auto& group : groupItems(items, places)) ordered->addObject(arrayOf(group));
  objc::writeIvar(self, kOrderedEditItems, ordered);
  return items;
}

std::vector<std::vector<NSObject*>> visibleItems(EKEventEditor* editor) {
  auto* const items = objc::send<"_editItems", NSArray*>(editor);
  if (!isIos8OrLater()) return groupItems(items, editItemPlaces());
  // From iOS 8 on the screen follows the ordered groups; the flat list is kept for looking items up.
  auto* const ordered = objc::readIvar<NSArray>(editor, kOrderedEditItems);
  std::vector<std::vector<NSObject*>> groups;
  for (NSUInteger i = 0; i < ordered->count(); ++i) {
    auto* const group = static_cast<NSArray*>(ordered->objectAtIndex(i));
    auto& members = groups.emplace_back();
    for (NSUInteger j = 0; j < group->count(); ++j) members.push_back(group->objectAtIndex(j));
  }
  return groups;
}

void viewWillAppear(EKEventEditor* self, SEL selector, bool animated) {
  objc::sendSuper(objc::classOf<UIViewController>(), self, selector, animated);
  reloadRows(self);
}

/// False when the database refused; `failure` (borrowed) then says why.
bool carryOut(const EventEditorState& state, EditAction action, NSObject** failure) {
  auto* const event = static_cast<EKEvent*>(state.calendarItem.get());
  // An editor is opened for the event that a name stands for. Of one that repeats that is the first
  // occurrence, with all that follow.
  constexpr EKEventStore::Span kWhole = EKEventStore::kFutureEvents;
  switch (action) {
    case EditAction::kSaved:
      return state.store->saveEvent(event, kWhole, failure);
    case EditAction::kDeleted:
      return state.store->removeEvent(event, kWhole, failure);
    case EditAction::kCancelled:
      break;
  }
  return true;
}

void showFailure(NSObject* failure) {
  const auto alert =
      objc::makeWith<UIAlertView, "initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:">(
          "Cannot Change Event"_ns, objc::send<"localizedDescription", NSString*>(failure),
          static_cast<NSObject*>(nullptr), "OK"_ns, static_cast<NSString*>(nullptr));
  alert->show();
}

void completeWithAction(EKEventEditor* self, SEL, NSInteger action, bool /*animated*/) {
  NSObject* failure = nullptr;
  if (!carryOut(stateOf<EventEditorState>(self), static_cast<EditAction>(action), &failure)) {
    // The editor stays open, so nothing that the user entered is lost.
    showFailure(failure);
    return;
  }
  objc::send<"editor:didCompleteWithAction:">(self->parentViewController(), self, action);
}

}  // namespace

ClassDefinition ekEventEditor() {
  return {.name = "EKEventEditor",
          .superclass = "UIViewController",
          .ivars = {{kEditItems}, {kOrderedEditItems, true, kSinceIos8}},
          .state = state<EventEditorState>(),
          .methods = {property<&EventEditorState::calendarItem, "calendarItem">(),
                      property<&EventEditorState::store, "store">(), method("_editItems", editItems),
                      method("viewWillAppear:", viewWillAppear),
                      method("completeWithAction:animated:", completeWithAction)}};
}

const ItemTable& tableOf(EKEventEditor* editor) { return stateOf<EventEditorState>(editor).table; }

void reloadRows(EKEventEditor* editor) { stateOf<EventEditorState>(editor).table.load(visibleItems(editor)); }

}  // namespace phone
