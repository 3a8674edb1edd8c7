// Objects associated with another object under a key, and released with it.
#pragma once

#include <cstdint>

#include "platform/objc/runtime.h"

#if defined(__GNU_LIBOBJC__)
// The phone's runtime header declares these; GCC's has no such functions, so here the host offers them.
using objc_AssociationPolicy = std::uintptr_t;

extern "C" {
/// Associates `value` (nil removes) with `object`. Policy 1 keeps a strong reference, non-atomically.
void objc_setAssociatedObject(id object, const void* key, id value, objc_AssociationPolicy policy);
/// The associated object (borrowed), or nil.
id objc_getAssociatedObject(id object, const void* key);
}
#endif

namespace objc {

inline void associate(const void* object, const void* key, const void* value) {
  constexpr auto kRetainNonatomic = static_cast<objc_AssociationPolicy>(1);
  objc_setAssociatedObject(asObject(object), key, asObject(value), kRetainNonatomic);
}

template <typename Type>
inline Type* associated(const void* object, const void* key) {
  return static_cast<Type*>(static_cast<void*>(objc_getAssociatedObject(asObject(object), key)));
}

}  // namespace objc
