// Font objects for the phone's own code.
#pragma once

#include "phone/uikit/type_face.h"
#include "platform/objc/owned.h"
#include "platform/uikit/ui_font.h"

namespace phone {

/// The system font of that weight and size in points; never nil.
objc::Owned<UIFont> makeFont(FontWeight weight, double points);

/// What the font measures and draws with; borrowed from the font, which must not be none.
TypeFace& typeFaceOf(UIFont* font);

}  // namespace phone
