// How cells of the list are made and faded.
#pragma once

#include "platform/objc/displaced.h"
#include "platform/springboard/sb_lock_screen_bulletin_cell.h"

namespace tavimo {

inline constinit objc::Displaced<id(SBLockScreenBulletinCell*, SEL, NSInteger, NSString*)>
    initWithStyleDisplaced;
inline constinit objc::Displaced<void(SBLockScreenBulletinCell*, SEL, CGFloat)> setContentAlphaDisplaced;

/// Makes every cell without a reuse identifier: a restyled cell must never show another publisher's item.
id initWithStyle(SBLockScreenBulletinCell* self, SEL selector, NSInteger style, NSString* reuseIdentifier);

/// Keeps own rows and the first row opaque.
void setContentAlpha(SBLockScreenBulletinCell* self, SEL selector, CGFloat alpha);

}  // namespace tavimo
