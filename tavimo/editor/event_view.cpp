#include "tavimo/editor/event_view.h"

#include "platform/foundation/ns_mutable_array.h"
#include "platform/objc/class_name.h"
#include "platform/objc/owned.h"
#include "tavimo/editor/event_detail_item.h"

namespace tavimo {

namespace {

/// The one detail item; made when the first event view with an alarm item builds its list, and kept.
constinit EKEventDetailItemOrv* sharedDetailItem = nullptr;

/// The index of the host's alarm item, or NSNotFound.
NSUInteger indexOfAlarmItem(NSArray* items) {
  const NSUInteger count = items->count();
  for (NSUInteger i = 0; i < count; ++i) {
    if (objc::isOfClass(items->objectAtIndex(i), "EKEventAlarmDetailItem")) return i;
  }
  return NSNotFound;
}

}  // namespace

void viewWillAppear(EKEventViewController* self, SEL selector, bool animated) {
  viewWillAppearDisplaced(self, selector, animated);
  if (sharedDetailItem == nullptr) return;
  sharedDetailItem->setCellIsVisible(true);
  // Another view may have had the item since this one built its list, and an editor may have changed the
  // store: the item is pointed at this view's event again, which reads the store.
  sharedDetailItem->setEvent(self->event(), nullptr);
  sharedDetailItem->dndSwitch()->setOn(sharedDetailItem->showOnLockscreen());
}

void viewWillDisappear(EKEventViewController* self, SEL selector, bool animated) {
  viewWillDisappearDisplaced(self, selector, animated);
  sharedDetailItem->setCellIsVisible(false);
}

NSArray* detailItems(EKEventViewController* self, SEL selector) {
  NSArray* const hostItems = detailItemsDisplaced(self, selector);
  auto items = objc::Owned<NSMutableArray>::adopt(static_cast<NSMutableArray*>(hostItems->mutableCopy()));
  const NSUInteger alarm = indexOfAlarmItem(hostItems);
  if (alarm != NSNotFound) {
    if (sharedDetailItem == nullptr) {
      sharedDetailItem = objc::make<EKEventDetailItemOrv, "EKEventDetailItemOrv">().relinquish();
    }
    sharedDetailItem->setEvent(self->event(), nullptr);
    if (sharedDetailItem != nullptr) items->insertObject(sharedDetailItem, alarm + 1);
  }
  return items.autorelease();
}

}  // namespace tavimo
