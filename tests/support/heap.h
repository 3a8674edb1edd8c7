// How much memory the process has in use, for tests that look for growth.
#pragma once

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#else
#include <malloc.h>
#endif

/// Bytes that were allocated and not freed yet. Under AddressSanitizer its own allocator has to be asked.
inline std::size_t heapInUse() {
#if defined(__SANITIZE_ADDRESS__)
  return __sanitizer_get_current_allocated_bytes();
#else
  return mallinfo2().uordblks;
#endif
}
