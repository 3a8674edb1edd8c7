// The object runtime's C interface, with the macros it leaves behind removed and the few differences
// between GCC's runtime and the phone's evened out.
#pragma once

#include <objc/message.h>
#include <objc/runtime.h>

#include "platform/objc/fixed_string.h"

// The runtime's headers define these as macros; both words are wanted as ordinary names.
#undef YES
#undef NO

namespace objc {

/// The selector of that name, registered at the first use and kept.
template <FixedString Name>
inline SEL selector() {
  static SEL const registered = sel_registerName(Name.c_str());
  return registered;
}

/// The class of that name, or nil. Only a class that was found is kept: a host may register it later.
template <FixedString Name>
inline Class classNamed() {
  static Class found = nullptr;
  if (found == nullptr) found = static_cast<Class>(objc_getClass(Name.c_str()));
  return found;
}

/// Every object pointer, whatever its view, as the runtime's own handle (borrowed).
inline id asObject(const void* object) { return static_cast<id>(const_cast<void*>(object)); }

}  // namespace objc
