// Type encodings deduced from C++ types, in the runtime's published format. The same encodings declare the
// methods of a class and check a message against the method that answers it.
#pragma once

#include <type_traits>

#include "platform/objc/runtime.h"

namespace objc {

/// The encoding of one type. A pointer to a class is an object unless a specialisation says otherwise.
template <typename Type>
struct Encoding;

// clang-format off
template <> struct Encoding<void> { static constexpr FixedString value = "v"; };
template <> struct Encoding<char> { static constexpr FixedString value = "c"; };
template <> struct Encoding<signed char> { static constexpr FixedString value = "c"; };
template <> struct Encoding<unsigned char> { static constexpr FixedString value = "C"; };
template <> struct Encoding<short> { static constexpr FixedString value = "s"; };
template <> struct Encoding<unsigned short> { static constexpr FixedString value = "S"; };
template <> struct Encoding<char16_t> { static constexpr FixedString value = "S"; };
template <> struct Encoding<int> { static constexpr FixedString value = "i"; };
template <> struct Encoding<unsigned int> { static constexpr FixedString value = "I"; };
template <> struct Encoding<float> { static constexpr FixedString value = "f"; };
template <> struct Encoding<double> { static constexpr FixedString value = "d"; };
template <> struct Encoding<long long> { static constexpr FixedString value = "q"; };
template <> struct Encoding<unsigned long long> { static constexpr FixedString value = "Q"; };
template <> struct Encoding<SEL> { static constexpr FixedString value = ":"; };
template <> struct Encoding<Class> { static constexpr FixedString value = "#"; };
template <> struct Encoding<char*> { static constexpr FixedString value = "*"; };
template <> struct Encoding<const char*> { static constexpr FixedString value = "r*"; };
#if defined(__LP64__)
template <> struct Encoding<bool> { static constexpr FixedString value = "B"; };
template <> struct Encoding<long> { static constexpr FixedString value = "q"; };
template <> struct Encoding<unsigned long> { static constexpr FixedString value = "Q"; };
#else
// The 32-bit phone's boolean is a signed character.
template <> struct Encoding<bool> { static constexpr FixedString value = "c"; };
template <> struct Encoding<long> { static constexpr FixedString value = "l"; };
template <> struct Encoding<unsigned long> { static constexpr FixedString value = "L"; };
#endif
// clang-format on

template <typename Pointee>
struct Encoding<Pointee*> {
  static constexpr auto encode() {
    if constexpr (std::is_class_v<Pointee>) {
      return FixedString("@");
    } else if constexpr (std::is_function_v<Pointee>) {
      return FixedString("^?");
    } else {
      return FixedString("^") + Encoding<std::remove_cv_t<Pointee>>::value;
    }
  }
  static constexpr auto value = encode();
};

/// The encoding of a method with that result and those arguments, receiver and selector included.
template <typename Result, typename... Arguments>
struct MethodEncoding {
  static constexpr auto concatenate() {
    if constexpr (sizeof...(Arguments) == 0) {
      return Encoding<Result>::value + FixedString("@:");
    } else {
      return Encoding<Result>::value + FixedString("@:") + (Encoding<Arguments>::value + ...);
    }
  }
  static constexpr auto value = concatenate();
};

/// The encoding of a function: its result, then its arguments.
template <typename Signature>
struct FunctionEncoding;

template <typename Result, typename... Arguments>
struct FunctionEncoding<Result(Arguments...)> {
  static constexpr auto value = (Encoding<Result>::value + ... + Encoding<Arguments>::value);
};

/// The encoding of a method whose function that is: `result function(Self*, SEL, arguments...)`.
template <typename Result, typename Self, typename... Arguments>
constexpr const char* encodingOf(Result (* /*method*/)(Self*, SEL, Arguments...)) {
  return MethodEncoding<Result, Arguments...>::value.c_str();
}

}  // namespace objc
