#include "tavimo/settings/item_ordering.h"

#include "contract/files.h"
#include "contract/ordering.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_calendar.h"
#include "platform/foundation/ns_date_components.h"
#include "platform/objc/owned.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

constexpr NSInteger kYearsAtEnds = 10;
constexpr NSInteger kFirstDayOffset = 360;

}  // namespace

void readItemOrdering() {
  const auto groups =
      objc::makeWith<NSArray, "initWithContentsOfFile:">(constantText<contract::kOrderingFile>());
  sortPriority = kNoOrdering;
  const NSUInteger system =
      groups ? groups->indexOfObject(constantText<contract::kSystemGroup>()) : NSNotFound;
  if (system == NSNotFound) {
    log<"system sort priority not found, no custom sorting of items will be done!">();
    return;
  }
  const NSUInteger own = groups->indexOfObject(constantText<contract::kEventGroup>());
  if (own == NSNotFound) return;
  const auto position = static_cast<NSInteger>(own);
  sortPriority = own < system ? kYearsAtEnds - position : -kYearsAtEnds - position;
}

NSDate* orderingDate(NSUInteger position) {
  const auto offset = objc::make<NSDateComponents>();
  offset->setYear(sortPriority);
  offset->setDay(kFirstDayOffset - static_cast<NSInteger>(position));
  return NSCalendar::currentCalendar()->dateByAddingComponents(offset.get(), NSDate::date(), 0);
}

}  // namespace tavimo
