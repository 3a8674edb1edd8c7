// Measuring texts in a font.
#pragma once

#include "platform/uikit/ui_font.h"

/// The size in points of the text set on one line; an absent text measures 0 by 0.
inline CGSize sizeWithFont(NSString* text, UIFont* font) {
  return objc::send<"sizeWithFont:", CGSize>(text, font);
}
