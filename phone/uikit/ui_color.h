// Colour objects for the phone's own code.
#pragma once

#include "phone/uikit/cg_color.h"
#include "platform/objc/owned.h"
#include "platform/uikit/ui_color.h"

namespace phone {

/// A new colour with those components.
objc::Owned<UIColor> makeColor(const CGColor& color);

/// The colour as drawing needs it; black for none.
Rgba rgbaOf(UIColor* color);

}  // namespace phone
