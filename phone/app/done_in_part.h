// How a verb says that it did a part of what it was asked, and has told which.
#pragma once

#include <exception>

namespace phone {

/// Ends the command with exit code 3 and without another word.
class DoneInPart : public std::exception {
 public:
  const char* what() const noexcept override { return "done in part"; }
};

}  // namespace phone
