// Recognising host objects by the name of their class, compared as C strings: a subclass has another name.
#pragma once

#include <cstring>

#include "platform/objc/send.h"

namespace objc {

/// Whether the object's class has exactly that name. None has no class.
inline bool isOfClass(const void* object, const char* className) {
  Class const itsClass = send<"class", Class>(object);
  return itsClass != nullptr && std::strcmp(class_getName(itsClass), className) == 0;
}

}  // namespace objc
