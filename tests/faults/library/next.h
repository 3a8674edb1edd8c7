// The C library's own function behind one that this library stands in for.
#pragma once

#include <dlfcn.h>

namespace faults {

/// The function of that name that would have been called without this library.
template <typename Function>
Function* next(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace faults
