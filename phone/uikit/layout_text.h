// Texts as Pango takes them: well-formed UTF-8 on one line.
#pragma once

#include <string>

#include "platform/foundation/ns_string.h"

namespace phone {

/// The text in UTF-8. Line breaks and control characters become spaces, a surrogate without its partner
/// becomes the replacement character. At most `mostUnits` UTF-16 code units are taken; `isWhole` tells
/// whether that was all. The result is valid until the next call.
struct LayoutText {
  const std::string& utf8;
  bool isWhole;
};
LayoutText layoutText(NSString* text, NSUInteger mostUnits);

}  // namespace phone
