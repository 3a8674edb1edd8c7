// Whether the host's blurred wallpaper is laid behind the list and behind plug-in screens.
#pragma once

#include "platform/objc/displaced.h"
#include "platform/springboard/sb_lock_screen_view.h"

namespace tavimo {

inline constinit objc::Displaced<id(SBLockScreenView*, SEL, CGRect)> initWithFrameDisplaced;
inline constinit objc::Displaced<void(SBLockScreenView*, SEL, NSString*)> addUnderlayDisplaced;

/// Records the view that underlays are asked of.
id initWithFrame(SBLockScreenView* self, SEL selector, CGRect frame);

/// Passes the request to the host, refuses it, or passes it on under the list's own name.
void addLockContentUnderlay(SBLockScreenView* self, SEL selector, NSString* requester);

}  // namespace tavimo
