// Memory for instructions that the loader writes itself.
#pragma once

#include <cstdint>
#include <vector>

namespace device {

/// The instructions at a place where they can be executed. Never taken back, for classes keep their methods.
void* placeCode(const std::vector<std::uint32_t>& code);

}  // namespace device
