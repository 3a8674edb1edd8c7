// What a walk through recurrences may cost. Files can hold rules that fit hardly ever, or a million times a
// day; whoever asks for occurrences says how far it is worth going.
#pragma once

#include <algorithm>
#include <cstdint>

namespace phone {

class WalkBudget {
 public:
  /// A step is a month or a time of day that is looked at, at some tens of nanoseconds.
  explicit WalkBudget(std::int64_t steps) : steps_(steps) {}

  /// False when there is nothing left.
  bool take(std::int64_t steps = 1) {
    steps_ -= steps;
    return steps_ >= 0;
  }
  bool isSpent() const { return steps_ <= 0; }
  /// Never less than 0.
  std::int64_t left() const { return std::max<std::int64_t>(steps_, 0); }

 private:
  std::int64_t steps_;
};

}  // namespace phone
