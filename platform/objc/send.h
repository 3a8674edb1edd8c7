// The message send: the one place that knows which runtime the library is compiled for. A message to none
// gives zero for every result type, structs and floating point included.
#pragma once

#include <type_traits>

#include "platform/objc/checked_send.h"
#include "platform/objc/runtime.h"

#if !defined(__GNU_LIBOBJC__)
extern "C" void objc_msgSend();
extern "C" void objc_msgSendSuper();
#if defined(__arm__)
extern "C" void objc_msgSend_stret();
extern "C" void objc_msgSendSuper_stret();
#endif
#endif

namespace objc {

namespace detail {

#if defined(__arm__) && !defined(__GNU_LIBOBJC__)
/// 32-bit ARM returns every struct larger than a register through memory, by an entry point of its own.
template <typename Result>
constexpr bool returnsThroughMemory() {
  if constexpr (std::is_class_v<Result>) {
    return sizeof(Result) > 4;
  } else {
    return false;
  }
}
#endif

}  // namespace detail

/// Sends the message. `receiver` may be none: the result is then zero.
template <typename Result = void, typename... Arguments>
inline Result send(const void* receiver, SEL selector, Arguments... arguments) {
  if (receiver == nullptr) return Result();
  id const object = asObject(receiver);
  checkSend<Result, Arguments...>(object, selector);
  using Method = Result (*)(id, SEL, Arguments...);
#if defined(__GNU_LIBOBJC__)
  return reinterpret_cast<Method>(objc_msg_lookup(object, selector))(object, selector, arguments...);
#elif defined(__arm__)
  if constexpr (detail::returnsThroughMemory<Result>()) {
    return reinterpret_cast<Method>(&objc_msgSend_stret)(object, selector, arguments...);
  } else {
    return reinterpret_cast<Method>(&objc_msgSend)(object, selector, arguments...);
  }
#else
  return reinterpret_cast<Method>(&objc_msgSend)(object, selector, arguments...);
#endif
}

/// Sends the message to the implementation above `superclass`'s subclass: the method that `superclass`
/// gives its instances. `superclass` must not be none.
template <typename Result = void, typename... Arguments>
inline Result sendSuper(Class superclass, const void* receiver, SEL selector, Arguments... arguments) {
  if (receiver == nullptr) return Result();
  id const object = asObject(receiver);
  objc_super target{};
#if defined(__GNU_LIBOBJC__)
  target.self = object;
  target.super_class = superclass;
  using Method = Result (*)(id, SEL, Arguments...);
  return reinterpret_cast<Method>(objc_msg_lookup_super(&target, selector))(object, selector, arguments...);
#else
  target.receiver = object;
  target.super_class = superclass;
  using Method = Result (*)(objc_super*, SEL, Arguments...);
#if defined(__arm__)
  if constexpr (detail::returnsThroughMemory<Result>()) {
    return reinterpret_cast<Method>(&objc_msgSendSuper_stret)(&target, selector, arguments...);
  } else {
    return reinterpret_cast<Method>(&objc_msgSendSuper)(&target, selector, arguments...);
  }
#else
  return reinterpret_cast<Method>(&objc_msgSendSuper)(&target, selector, arguments...);
#endif
#endif
}

/// Sends a message to a method with a variable argument list, whose calling convention may differ from that
/// of a method with fixed arguments. `Method` is the method's own variadic function type.
template <typename Method, typename... Arguments>
inline auto sendVariadic(const void* receiver, SEL selector, Arguments... arguments)
    -> decltype(static_cast<Method>(nullptr)(id(), selector, arguments...)) {
  if (receiver == nullptr) return {};
  id const object = asObject(receiver);
#if defined(__GNU_LIBOBJC__)
  return reinterpret_cast<Method>(objc_msg_lookup(object, selector))(object, selector, arguments...);
#else
  return reinterpret_cast<Method>(&objc_msgSend)(object, selector, arguments...);
#endif
}

/// Sends a message by its selector's name; the usual form inside a view.
template <FixedString Name, typename Result = void, typename... Arguments>
inline Result send(const void* receiver, Arguments... arguments) {
  return send<Result, Arguments...>(receiver, selector<Name>(), arguments...);
}

/// Sends a message that only some versions of the phone know. A receiver that does not know it is left
/// alone, and the result is zero.
template <FixedString Name, typename Result = void, typename... Arguments>
inline Result sendIfResponds(const void* receiver, Arguments... arguments) {
  if (!send<"respondsToSelector:", bool>(receiver, selector<Name>())) return Result();
  return send<Result, Arguments...>(receiver, selector<Name>(), arguments...);
}

/// Sends a class method to the class of that name; a class that does not exist is none.
template <FixedString ClassName, FixedString Name, typename Result = void, typename... Arguments>
inline Result sendToClass(Arguments... arguments) {
  return send<Result, Arguments...>(classNamed<ClassName>(), selector<Name>(), arguments...);
}

}  // namespace objc
