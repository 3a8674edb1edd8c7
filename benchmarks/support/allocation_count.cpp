#include "benchmarks/support/allocation_count.h"

// The C library's own entry points behind malloc, calloc and realloc; ours below are used by every library in
// the process, because the program's symbols come first.
extern "C" {
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);
}

namespace {

std::size_t allocations = 0;

}  // namespace

extern "C" {

void* malloc(std::size_t size) {
  ++allocations;
  return __libc_malloc(size);
}

void* calloc(std::size_t count, std::size_t size) {
  ++allocations;
  return __libc_calloc(count, size);
}

void* realloc(void* block, std::size_t size) {
  ++allocations;
  return __libc_realloc(block, size);
}

}  // extern "C"

namespace benchmarks {

std::size_t allocationCount() { return allocations; }

}  // namespace benchmarks
