// Labels: one line of text in a font and a colour, cut with an ellipsis where it does not fit.
#pragma once

#include "phone/uikit/type_face.h"
#include "phone/uikit/ui_view.h"
#include "platform/uikit/ui_font.h"
#include "platform/uikit/ui_label.h"

namespace phone {

struct LabelState {
  objc::Owned<NSString> text;
  objc::Owned<UIFont> font;
  objc::Owned<UIColor> textColor;
  NSInteger textAlignment = 0;
};

}  // namespace phone
