// SBLockScreenView, the whole lock screen: wallpaper, underlays, status bar, clock, list, and the hint at the
// bottom. An underlay covers the whole screen, as on the phone; any number of requesters share one.
#pragma once

#include <string>
#include <vector>

#include "phone/uikit/surface.h"
#include "platform/objc/owned.h"
#include "platform/springboard/sb_lock_screen_notification_list_view.h"
#include "platform/springboard/sb_lock_screen_view.h"

class NSDate;

namespace phone {

/// Who has an underlay now, in the order of asking.
const std::vector<std::string>& underlayRequesters(SBLockScreenView* view);

/// Puts the list's view on the screen, at its place there, instead of an earlier one; none takes it away. No
/// screen, no effect.
void setListView(SBLockScreenView* view, SBLockScreenNotificationListView* listView);

/// Shows what is playing: controls above the list, and the album's picture while the list is empty.
void setNowPlaying(SBLockScreenView* view, bool isPlaying);

/// What the clock and the line below it show.
void setShownTime(SBLockScreenView* view, NSDate* time);

/// A picture that fills the screen; none: the phone's own wallpaper.
void setWallpaper(SBLockScreenView* view, Surface picture);

}  // namespace phone
