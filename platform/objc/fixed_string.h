// A text that can be a template argument, so that every selector, class name and constant text has a
// function of its own with its own cache.
#pragma once

#include <algorithm>
#include <cstddef>

namespace objc {

/// A character array of fixed size. `characters` ends in a zero byte.
template <std::size_t Size>
struct FixedString {
  char characters[Size]{};

  constexpr FixedString() = default;
  // NOLINTNEXTLINE(google-explicit-constructor): a literal is meant to convert.
  constexpr FixedString(const char (&text)[Size]) { std::copy_n(text, Size, characters); }

  constexpr const char* c_str() const { return characters; }
  static constexpr std::size_t length() { return Size - 1; }
};

template <std::size_t Left, std::size_t Right>
constexpr FixedString<Left + Right - 1> operator+(const FixedString<Left>& left,
                                                  const FixedString<Right>& right) {
  FixedString<Left + Right - 1> sum;
  std::copy_n(left.characters, Left - 1, sum.characters);
  std::copy_n(right.characters, Right, sum.characters + Left - 1);
  return sum;
}

}  // namespace objc
