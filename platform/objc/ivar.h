// Instance variables of host objects, reached by name. A variable that the host's class lacks reads as nil,
// and writing to it does nothing.
#pragma once

#include <cstddef>

#include "platform/objc/owned.h"

namespace objc {

/// Where the object keeps its instance variable of that name, or nil when it has no such variable.
template <typename Type>
inline Type** objectIvar(const void* object, const char* name) {
  if (object == nullptr) return nullptr;
  Ivar const variable = class_getInstanceVariable(object_getClass(asObject(object)), name);
  if (variable == nullptr) return nullptr;
  auto* const bytes = static_cast<std::byte*>(const_cast<void*>(object));
  return reinterpret_cast<Type**>(bytes + ivar_getOffset(variable));
}

/// The object in the instance variable (borrowed), or nil.
template <typename Type>
inline Type* readIvar(const void* object, const char* name) {
  Type** const place = objectIvar<Type>(object, name);
  return place == nullptr ? nullptr : *place;
}

/// Replaces the object in the instance variable by a strong reference to `value`.
template <typename Type>
inline void writeIvar(const void* object, const char* name, Type* value) {
  if (Type** const place = objectIvar<Type>(object, name); place != nullptr) assignStrong(*place, value);
}

}  // namespace objc
