#include "phone/springboard/list_order.h"

#include <limits>

#include "platform/foundation/ns_date.h"

namespace phone {

namespace {

double orderOf(SBAwayListItem* item) {
  NSDate* const date = item->sortDate();
  return date == nullptr ? -std::numeric_limits<double>::infinity() : date->timeIntervalSinceReferenceDate();
}

}  // namespace

void insertByDate(NSMutableArray* items, SBAwayListItem* item) {
  const double order = orderOf(item);
  NSUInteger first = 0;
  NSUInteger end = items->count();
  while (first < end) {
    const NSUInteger middle = first + (end - first) / 2;
    if (orderOf(static_cast<SBAwayListItem*>(items->objectAtIndex(middle))) >= order) {
      first = middle + 1;
    } else {
      end = middle;
    }
  }
  items->insertObject(item, first);
}

BBBulletin* bulletinOf(SBAwayListItem* item) {
  return objc::sendIfResponds<"activeBulletin", BBBulletin*>(item);
}

}  // namespace phone
