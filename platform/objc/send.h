// The message send: the one place that knows which runtime the library is compiled for. A message to nil
// gives zero for every result type, structs and floating point included.
#pragma once

#include <type_traits>

#include "platform/objc/checked_send.h"
#include "platform/objc/crossing.h"
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

#if !defined(__GNU_LIBOBJC__)
#if defined(__arm__)
/// 32-bit ARM returns every struct larger than a register through memory, by entry points of their own.
template <typename Result>
constexpr bool returnsThroughMemory() {
  if constexpr (std::is_class_v<Result>) {
    return sizeof(Result) > 4;
  } else {
    return false;
  }
}
#endif

using Sender = void (*)();

/// The runtime's function that sends a message with that result.
template <typename Result>
constexpr Sender sender() {
#if defined(__arm__)
  if constexpr (returnsThroughMemory<Result>()) return &objc_msgSend_stret;
#endif
  return &objc_msgSend;
}

/// The same for a message to a superclass's method.
template <typename Result>
constexpr Sender superSender() {
#if defined(__arm__)
  if constexpr (returnsThroughMemory<Result>()) return &objc_msgSendSuper_stret;
#endif
  return &objc_msgSendSuper;
}
#endif

}  // namespace detail

/// Sends the message. `receiver` may be nil: the result is then zero.
template <typename Result = void, typename... Arguments>
inline Result send(const void* receiver, SEL selector, Arguments... arguments) {
  if (receiver == nullptr) return Result();
  id const object = asObject(receiver);
  checkSend<Result, Arguments...>(object, selector);
  using Across = Crossing<Result(id, SEL, Arguments...)>;
  using Method = typename Across::Function;
#if defined(__GNU_LIBOBJC__)
  const auto method = reinterpret_cast<Method>(objc_msg_lookup(object, selector));
#else
  const auto method = reinterpret_cast<Method>(detail::sender<Result>());
#endif
  return Across::call(method, object, selector, arguments...);
}

/// Sends the message to the implementation above `superclass`'s subclass: the method that `superclass`
/// gives its instances. `superclass` must not be nil.
template <typename Result = void, typename... Arguments>
inline Result sendSuper(Class superclass, const void* receiver, SEL selector, Arguments... arguments) {
  if (receiver == nullptr) return Result();
  id const object = asObject(receiver);
  objc_super target{};
#if defined(__GNU_LIBOBJC__)
  target.self = object;
  target.super_class = superclass;
  using Across = Crossing<Result(id, SEL, Arguments...)>;
  const auto method = reinterpret_cast<typename Across::Function>(objc_msg_lookup_super(&target, selector));
  return Across::call(method, object, selector, arguments...);
#else
  target.receiver = object;
  target.super_class = superclass;
  using Across = Crossing<Result(objc_super*, SEL, Arguments...)>;
  const auto method = reinterpret_cast<typename Across::Function>(detail::superSender<Result>());
  return Across::call(method, &target, selector, arguments...);
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

/// Sends a class method to the class of that name; a class that does not exist is nil.
template <FixedString ClassName, FixedString Name, typename Result = void, typename... Arguments>
inline Result sendToClass(Arguments... arguments) {
  return send<Result, Arguments...>(classNamed<ClassName>(), selector<Name>(), arguments...);
}

}  // namespace objc
