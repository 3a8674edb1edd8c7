// Fonts, colours, frames and separators of own cells, set again at every layout pass.
#pragma once

#include "platform/objc/displaced.h"
#include "platform/springboard/sb_lock_screen_bulletin_cell.h"

namespace tavimo {

inline constinit objc::Displaced<void(SBLockScreenBulletinCell*, SEL)> layoutSubviewsDisplaced;

void layoutSubviews(SBLockScreenBulletinCell* self, SEL selector);

}  // namespace tavimo
