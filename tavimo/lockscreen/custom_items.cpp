#include "tavimo/lockscreen/custom_items.h"

#include "tavimo/lockscreen/list_items.h"
#include "tavimo/settings/log.h"

using tavimo::Publisher;
using tavimo::publisherOfItem;

bool onlyCustomItemsAreDisplayed(NSMutableArray* listItems) {
  const NSUInteger all = listItems->count();
  NSUInteger custom = 0;
  for (NSUInteger i = 0; i < all; ++i) {
    NSObject* const item = listItems->objectAtIndex(i);
    TAVIMO_DEBUG(log<"Found lockscreen item: %@, class:%@">(
        item, NSStringFromClass(objc::send<"class", Class>(item))));
    if (publisherOfItem(item) != Publisher::kOther) ++custom;
  }
  if (custom != 0 && custom == all) {
    TAVIMO_DEBUG(log<"only custom items are found">());
    return true;
  }
  TAVIMO_DEBUG(log<"NOT only custom items are found, custom:%lu, all:%lu">(custom, all));
  return false;
}

bool customItemsAreDisplayed(NSMutableArray* listItems) {
  const NSUInteger all = listItems->count();
  for (NSUInteger i = 0; i < all; ++i) {
    if (publisherOfItem(listItems->objectAtIndex(i)) != Publisher::kOther) return true;
  }
  return false;
}
