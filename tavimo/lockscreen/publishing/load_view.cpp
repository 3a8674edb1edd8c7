#include "tavimo/lockscreen/publishing/load_view.h"

#include "platform/objc/owned.h"
#include "tavimo/lockscreen/lock_screen_state.h"
#include "tavimo/lockscreen/publishing/published_bulletins.h"
#include "tavimo/settings/item_ordering.h"
#include "tavimo/settings/settings_model.h"
#include "tavimo/settings/settings_reader.h"

namespace tavimo {

void loadView(SBLockScreenNotificationListController* self, SEL selector) {
  objc::assignStrong(sBLockScreenNotificationListController, self);
  readItemOrdering();
  readSettings();
  withdrawBulletins(self);
  if (isEnabled) publishEvents(self);
  loadViewDisplaced(self, selector);
}

}  // namespace tavimo
