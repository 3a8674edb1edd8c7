// How a verb says that it was used wrongly.
#pragma once

#include <stdexcept>

namespace phone {

/// A use that the parser cannot know to be wrong; ends the command with exit code 2. Any other exception ends
/// it with 1.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace phone
