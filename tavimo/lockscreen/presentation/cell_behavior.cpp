#include "tavimo/lockscreen/presentation/cell_behavior.h"

#include "tavimo/lockscreen/list_items.h"
#include "tavimo/lockscreen/pass_through.h"
#include "tavimo/lockscreen/presentation/cell_row.h"
#include "tavimo/settings/log.h"

namespace tavimo {

namespace {

TAVIMO_OWN_WORK bool staysOpaque(SBLockScreenBulletinCell* cell, CGFloat alpha) {
  NSIndexPath* const indexPath = indexPathOfCell(cell);
  if (indexPath->row() == 0 && indexPath->section() == 0) return true;
  if (ownRecordOf(listItemAt(indexPath)) == nullptr) return false;
  TAVIMO_DEBUG(log<"cell setContentAlpha, setting to custom. Orig = %f">(static_cast<double>(alpha)));
  return true;
}

}  // namespace

id initWithStyle(SBLockScreenBulletinCell* self, SEL selector, NSInteger style, NSString* reuseIdentifier) {
  return initWithStyleDisplaced(self, selector, style, isEnabled ? nullptr : reuseIdentifier);
}

void setContentAlpha(SBLockScreenBulletinCell* self, SEL selector, CGFloat alpha) {
  setContentAlphaDisplaced(self, selector, isEnabled && staysOpaque(self, alpha) ? CGFloat{1.0} : alpha);
}

}  // namespace tavimo
