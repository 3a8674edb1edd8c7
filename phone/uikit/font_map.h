// The fonts of the phone, from a font configuration of its own: whatever else is installed or configured on
// the machine, texts have the same sizes and look the same.
#pragma once

#include <pango/pango.h>

namespace phone {

/// The fonts by weight and size at one unit a point, unhinted. Made at the first use (borrowed).
PangoFontMap* fontMap();

/// The family that the system font is taken from.
inline constexpr const char* kSystemFontFamily = "Inter";

}  // namespace phone
