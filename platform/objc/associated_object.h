// Objects associated with another object under a key, and released with it.
#pragma once

#include <cstdint>

#include "platform/objc/runtime.h"

extern "C" {
/// Associates `value` (none removes) with `object`. Policy 1 keeps a strong reference, non-atomically.
void objc_setAssociatedObject(id object, const void* key, id value, std::uintptr_t policy);
/// The associated object (borrowed), or none.
id objc_getAssociatedObject(id object, const void* key);
}

namespace objc {

inline void associate(const void* object, const void* key, const void* value) {
  constexpr std::uintptr_t kRetainNonatomic = 1;
  objc_setAssociatedObject(asObject(object), key, asObject(value), kRetainNonatomic);
}

template <typename Type>
inline Type* associated(const void* object, const void* key) {
  return static_cast<Type*>(static_cast<void*>(objc_getAssociatedObject(asObject(object), key)));
}

}  // namespace objc
