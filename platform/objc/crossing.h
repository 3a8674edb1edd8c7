// Where C++'s types and the runtime's part: the boolean. A 64-bit phone's is C++'s own. A 32-bit phone's is a
// signed character in which anything but 0 is true, 2 and -1 included, while a C++ bool of such a value is
// undefined: so results are normalised before C++ sees them, and functions of ours are entered with the
// phone's type. Where the two are the same, nothing of this is left in the code.
#pragma once

#include <type_traits>

#include "platform/objc/runtime.h"

namespace objc {

/// The phone's boolean.
#if defined(__LP64__)
using Boolean = bool;
#else
using Boolean = signed char;
#endif

/// The type by which a value of that C++ type crosses. Which boolean the phone has is a parameter, so that
/// each can be tried on any machine.
template <typename Type, typename PhoneBoolean = Boolean>
using Crossed = std::conditional_t<std::is_same_v<Type, bool>, PhoneBoolean, Type>;

template <typename Signature, typename PhoneBoolean = Boolean>
struct Crossing;

/// Calls across, for functions of one C++ signature.
template <typename Result, typename... Arguments, typename PhoneBoolean>
struct Crossing<Result(Arguments...), PhoneBoolean> {
  /// What stands on the phone's side.
  using Function = Crossed<Result, PhoneBoolean> (*)(Crossed<Arguments, PhoneBoolean>...);

  /// Calls the phone's function with C++ values.
  static Result call(Function function, Arguments... arguments) {
    if constexpr (std::is_same_v<Result, bool>) {
      return function(arguments...) != 0;
    } else {
      return function(arguments...);
    }
  }

  /// The phone calls this for a function of ours.
  template <Result (*Ours)(Arguments...)>
  static Crossed<Result, PhoneBoolean> enter(Crossed<Arguments, PhoneBoolean>... arguments) {
    return Ours(static_cast<Arguments>(arguments)...);
  }
};

/// The implementation to install for a function of ours: the function itself wherever no value of it changes.
template <auto Function, typename PhoneBoolean = Boolean>
IMP implementationOf() {
  using Ours = Crossing<std::remove_pointer_t<decltype(Function)>, PhoneBoolean>;
  if constexpr (std::is_same_v<typename Ours::Function, decltype(Function)>) {
    return reinterpret_cast<IMP>(Function);
  } else {
    return reinterpret_cast<IMP>(&Ours::template enter<Function>);
  }
}

}  // namespace objc
