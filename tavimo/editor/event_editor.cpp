#include "tavimo/editor/event_editor.h"

#include <algorithm>

#include "platform/eventkit/ek_calendar_item.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/ns_mutable_array.h"
#include "platform/objc/associated_object.h"
#include "platform/objc/class_of.h"
#include "platform/objc/ivar.h"
#include "tavimo/editor/event_orv_item.h"
#include "tavimo/editor/event_visibility.h"
#include "tavimo/events/hidden_event_store.h"

namespace tavimo {

namespace {

constexpr NSUInteger kItemIndex = 8;
constexpr NSUInteger kItemIndexIos7 = 7;
constexpr NSUInteger kItemGroup = 3;

// The editor holds its own item, so that two open editors never write each other's choice.
constexpr char kItemKey = 0;

bool editsNewEvent(EKEventEditor* editor) {
  return objc::isOfClass(editor->parentViewController()->parentViewController(), "AddEventViewController");
}

/// The editor's new item in the state that its event asks for; nil when the class is not there.
objc::Owned<EKEventOrvItem> makeItem(EKEventEditor* editor) {
  auto item = objc::make<EKEventOrvItem>();
  item->setCalendarItem(editor->calendarItem(), editor->store());
  // A new event can meet the entry of a deleted one.
  if (editsNewEvent(editor)) item->setShowOnLockscreen(true);
  return item;
}

/// From iOS 8 on the editor shows its items in groups; the item ends the fourth.
void appendToGroup(EKEventEditor* editor, EKEventOrvItem* item) {
  auto* const groups = objc::asKind<NSMutableArray>(objc::readIvar<NSObject>(editor, "_orderedEditItems"));
  if (groups->count() <= kItemGroup) return;
  auto* const hostGroup = objc::asKind<NSArray>(groups->objectAtIndex(kItemGroup));
  if (hostGroup == nullptr) return;
  NSMutableArray* const group = NSMutableArray::arrayWithArray(hostGroup);
  group->addObject(item);
  groups->replaceObjectAtIndex(kItemGroup, group);
}

}  // namespace

NSArray* editItems(EKEventEditor* self, SEL selector) {
  NSArray** const built = objc::objectIvar<NSArray>(self, "_editItems");
  const bool isFirstBuild = built != nullptr && *built == nullptr;
  NSArray* const hostItems = editItemsDisplaced(self, selector);
  if (!isFirstBuild || hostItems == nullptr) return hostItems;
  const objc::Owned<EKEventOrvItem> item = makeItem(self);
  if (!item) return hostItems;
  objc::associate(self, &kItemKey, item.get());

  auto items = objc::Owned<NSMutableArray>::adopt(static_cast<NSMutableArray*>(hostItems->mutableCopy()));
  items->insertObject(item.get(), std::min(isIos8OrLater() ? kItemIndex : kItemIndexIos7, items->count()));
  objc::writeIvar<NSArray>(self, "_editItems", items.get());
  if (isIos8OrLater()) appendToGroup(self, item.get());
  return items.autorelease();
}

void completeWithAction(EKEventEditor* self, SEL selector, NSInteger action, bool animated) {
  // Held over the host's work, which may let go of editor and event.
  const auto item = objc::Owned<EKEventOrvItem>::retain(objc::associated<EKEventOrvItem>(self, &kItemKey));
  const auto event = objc::Owned<EKCalendarItem>::retain(self->calendarItem());
  NSString* const keyBefore = item ? hiddenEventKey(externalURLText(event.get())) : nullptr;
  if (keyBefore != nullptr) setEventHidden(keyBefore, !item->showOnLockscreen());
  completeWithActionDisplaced(self, selector, action, animated);
  if (!item || keyBefore != nullptr) return;
  // A new event gets its URL when the host saves it.
  NSString* const keyAfter = hiddenEventKey(externalURLText(event.get()));
  if (keyAfter != nullptr) setEventHidden(keyAfter, !item->showOnLockscreen());
}

}  // namespace tavimo
