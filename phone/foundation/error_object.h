// Foundation's error objects, as the phone's methods hand them out.
#pragma once

#include <string>

#include "platform/foundation/ns_object.h"
#include "platform/foundation/ns_string.h"

namespace phone {

/// An error (autoreleased) whose localizedDescription is the reason, in words for people; Foundation has
/// words of its own instead of a reason that is not UTF-8.
NSObject* errorObject(NSString* domain, NSInteger code, const std::string& reason);

}  // namespace phone
