// Texts as Pango takes them: well-formed UTF-8 on one line.
#pragma once

#include <string>

#include "platform/foundation/ns_string.h"

namespace phone {

/// The first `mostUnits` UTF-16 code units of the text in UTF-8. Line breaks and control characters become
/// spaces, a surrogate without its partner becomes the replacement character. Valid until the next call.
const std::string& layoutText(NSString* text, NSUInteger mostUnits);

}  // namespace phone
