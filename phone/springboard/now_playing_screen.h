// The Now Playing screen: what a music player's plug-in lays over the lock screen.
#pragma once

#include <cairo.h>

#include "platform/coregraphics/cg_geometry.h"

namespace phone {

/// How much of the list's room the controls take, in points from its top.
inline constexpr double kNowPlayingControlsHeight = 132;

/// Draws progress, title, transport and volume at the top of the room.
void drawNowPlayingControls(cairo_t* canvas, CGRect room);

/// Draws the album's picture below the controls, as large as the room lets it be.
void drawNowPlayingArt(cairo_t* canvas, CGRect room);

}  // namespace phone
