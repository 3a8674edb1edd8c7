// Colours as texts: "#" and six hexadecimal digits. The calendar colour of an event travels in this form
// inside its record's message.
#pragma once

#include "platform/uikit/ui_color.h"
#include "tavimo/export.h"

/// A new colour, owned by the caller. A text that is absent or neither 7 nor 9 characters long gives white;
/// its first character is skipped, whatever it is, and so is what follows the sixth digit.
TAVIMO_EXPORT UIColor* colorFromHexString(NSString* text);

/// A new text, owned by the caller, with upper-case digits. A grey colour's white serves for all three;
/// no colour counts as white.
TAVIMO_EXPORT NSString* hexStringForColor(UIColor* color);
