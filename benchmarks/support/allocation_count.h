// Counts heap allocations of the whole process, for "makes none" promises.
#pragma once

#include <cstddef>

namespace benchmarks {

/// How often memory was asked for since the process began.
std::size_t allocationCount();

}  // namespace benchmarks
