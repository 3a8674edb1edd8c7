// The loaded plug-in's exported values, by name.
#pragma once

#include "phone/objc/plugin.h"

namespace phone {

/// exported<bool>("isEnabled") = true
template <typename Type>
Type& exported(const char* name) {
  return *pluginSymbol<Type>(name);
}

}  // namespace phone
