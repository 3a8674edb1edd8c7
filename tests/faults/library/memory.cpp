// Memory: malloc, calloc and realloc, under which C++'s `new` lies, too.
#include <cerrno>
#include <cstddef>

#include "tests/faults/library/plan.h"

// Known by name: looking them up as other functions are would ask for memory.
extern "C" void* __libc_malloc(std::size_t size);
extern "C" void* __libc_calloc(std::size_t count, std::size_t size);
extern "C" void* __libc_realloc(void* memory, std::size_t size);

namespace {

bool runsOut() {
  const faults::Outcome outcome = faults::outcomeOf(faults::Call::kAllocate);
  if (outcome == faults::Outcome::kIsLast) faults::die();
  if (outcome == faults::Outcome::kGoesOn) return false;
  errno = ENOMEM;
  return true;
}

}  // namespace

extern "C" void* malloc(std::size_t size) { return runsOut() ? nullptr : __libc_malloc(size); }

extern "C" void* calloc(std::size_t count, std::size_t size) {
  return runsOut() ? nullptr : __libc_calloc(count, size);
}

extern "C" void* realloc(void* memory, std::size_t size) {
  return runsOut() ? nullptr : __libc_realloc(memory, size);
}
