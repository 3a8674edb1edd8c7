// A fuzz target: something that is made once per process and then tried with one input after the other. The
// same target runs under libFuzzer, which makes inputs up, and in a test that replays the kept ones.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace phone::fuzz {

class Target {
 public:
  Target() = default;
  Target(const Target&) = delete;
  Target& operator=(const Target&) = delete;
  virtual ~Target() = default;

  /// Tries one input, of any bytes (borrowed). What the last input left behind must not count. A rule that
  /// does not hold is told by require(); every exception that gets out is a fault, too.
  virtual void tryInput(std::string_view bytes) = 0;
};

/// The one target of the program. Each target's file defines this.
std::unique_ptr<Target> makeTarget();

/// Ends the process with that text on standard error, unless the rule holds.
void require(bool holds, const std::string& otherwise);

/// Has the target try the input, and lets go of what that logged and autoreleased.
void tryInput(Target& target, std::string_view bytes);

}  // namespace phone::fuzz
