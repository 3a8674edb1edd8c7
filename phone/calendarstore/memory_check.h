// Whether libical had the memory that it asked for: it leaves out what it has none for, and goes on.
#pragma once

#include <cerrno>
#include <new>

namespace phone {

/// Watches from its making on. What was read meanwhile counts only if no memory was missing.
class MemoryCheck {
 public:
  MemoryCheck() { errno = 0; }

  bool wasShort() const { return errno == ENOMEM; }
  /// Throws std::bad_alloc when memory was missing.
  void require() const {
    if (wasShort()) throw std::bad_alloc();
  }
};

}  // namespace phone
