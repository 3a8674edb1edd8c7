#include "benchmarks/support/enabled_list.h"

#include "phone/objc/plugin.h"
#include "platform/foundation/ns_mutable_array.h"

namespace benchmarks {

EnabledList::EnabledList(NSUInteger items, NSString* identifier)
    : enabled_(*phone::pluginSymbol<bool>("isEnabled")) {
  const auto listItems = objc::make<NSMutableArray>();
  for (NSUInteger i = 0; i < items; ++i) listItems->addObject(makeListItem(identifier).get());
  controller_ = makeListController(listItems.get());
  row_ = makeRow(1);
  objc::assignStrong(
      *phone::pluginSymbol<SBLockScreenNotificationListController*>("sBLockScreenNotificationListController"),
      controller_.get());
  *phone::pluginSymbol<NSInteger>("wallpaperBlurMode") = 1;
  enabled_ = true;
}

}  // namespace benchmarks
