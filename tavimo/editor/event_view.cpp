#include "tavimo/editor/event_view.h"

#include "platform/foundation/ns_mutable_array.h"
#include "platform/objc/class_of.h"
#include "platform/objc/owned.h"
#include "tavimo/editor/event_detail_item.h"
#include "tavimo/editor/views_on_screen.h"

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

/// Shows the event of the view in use in the row. Another view may have had the item since, and an editor may
/// have changed the store, which is read again.
void followViewInUse() {
  EKEventViewController* const view = viewInUse();
  if (view == nullptr) return;
  sharedDetailItem->setEvent(view->event(), nullptr);
  sharedDetailItem->dndSwitch()->setOn(sharedDetailItem->showOnLockscreen());
}

}  // namespace

void viewWillAppear(EKEventViewController* self, SEL selector, bool animated) {
  viewWillAppearDisplaced(self, selector, animated);
  noteAppeared(self);
  if (sharedDetailItem == nullptr) return;
  sharedDetailItem->setCellIsVisible(true);
  followViewInUse();
}

void viewWillDisappear(EKEventViewController* self, SEL selector, bool animated) {
  viewWillDisappearDisplaced(self, selector, animated);
  noteDisappeared(self);
  if (sharedDetailItem == nullptr) return;
  sharedDetailItem->setCellIsVisible(false);
  // A view that was covered without disappearing does not appear again.
  followViewInUse();
}

NSArray* detailItems(EKEventViewController* self, SEL selector) {
  NSArray* const hostItems = detailItemsDisplaced(self, selector);
  auto items = objc::Owned<NSMutableArray>::adopt(static_cast<NSMutableArray*>(hostItems->mutableCopy()));
  const NSUInteger alarm = indexOfAlarmItem(hostItems);
  noteListsItem(self, alarm != NSNotFound);
  if (alarm != NSNotFound) {
    if (sharedDetailItem == nullptr) {
      sharedDetailItem = objc::make<EKEventDetailItemOrv>().relinquish();
    }
    // A list that is built while another view is in use changes nothing about whose event the row shows.
    EKEventViewController* const inUse = viewInUse();
    if (inUse == nullptr || inUse == self) sharedDetailItem->setEvent(self->event(), nullptr);
    if (sharedDetailItem != nullptr) items->insertObject(sharedDetailItem, alarm + 1);
  }
  return items.autorelease();
}

}  // namespace tavimo
