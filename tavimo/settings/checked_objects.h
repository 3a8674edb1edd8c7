// Objects from files and from the host, looked at before they are trusted: a message that the object does
// not know would end the host.
#pragma once

#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_string.h"

namespace tavimo {

/// The object itself when it is a text, else none.
inline NSString* asText(NSObject* object) {
  return object->isKindOfClass(objc::classNamed<"NSString">()) ? static_cast<NSString*>(object) : nullptr;
}

/// The object itself when it is an array, else none.
inline NSArray* asArray(NSObject* object) {
  return object->isKindOfClass(objc::classNamed<"NSArray">()) ? static_cast<NSArray*>(object) : nullptr;
}

}  // namespace tavimo
