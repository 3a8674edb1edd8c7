// The class of a view. A view bears the name of its class, so the name is taken from the type and stands
// nowhere else.
#pragma once

#include <algorithm>
#include <cstring>
#include <string_view>

#include "platform/objc/send.h"

namespace objc {

namespace detail {

/// The type's name as the compiler writes it into this function's own: "... [View = UILabel]", which GCC
/// introduces by "with".
template <typename View>
constexpr std::string_view typeName() {
  constexpr std::string_view kFunction = __PRETTY_FUNCTION__;
  constexpr std::string_view kBefore = "View = ";
  constexpr std::size_t kStart = kFunction.find(kBefore) + kBefore.size();
  return kFunction.substr(kStart, kFunction.find_first_of(";]", kStart) - kStart);
}

}  // namespace detail

/// The name of the view's class.
template <typename View>
inline constexpr auto kClassName = [] {
  constexpr std::string_view kName = detail::typeName<View>();
  static_assert(kName.find("::") == std::string_view::npos, "the runtime has no class in a namespace");
  FixedString<kName.size() + 1> name;
  std::copy(kName.begin(), kName.end(), name.characters);
  return name;
}();

/// The view's class, or nil in a process without it.
template <typename View>
inline Class classOf() {
  return classNamed<kClassName<View>>();
}

/// Sends a class method to the view's class; to a class that does not exist it is a message to nil.
template <typename View, FixedString Name, typename Result = void, typename... Arguments>
inline Result sendToClass(Arguments... arguments) {
  return send<Result, Arguments...>(classOf<View>(), selector<Name>(), arguments...);
}

/// Whether the object's class has exactly that name: a subclass has another. Nil has no class.
inline bool isOfClass(const void* object, const char* className) {
  Class const itsClass = send<"class", Class>(object);
  return itsClass != nullptr && std::strcmp(class_getName(itsClass), className) == 0;
}

/// The object itself when its class is exactly the view's, else nil.
template <typename View>
inline View* exactly(const void* object) {
  return isOfClass(object, kClassName<View>.c_str()) ? static_cast<View*>(const_cast<void*>(object))
                                                     : nullptr;
}

/// The object itself when it is of the view's class or of a subclass, else nil.
template <typename View>
inline View* asKind(const void* object) {
  return send<"isKindOfClass:", bool>(object, classOf<View>()) ? static_cast<View*>(const_cast<void*>(object))
                                                               : nullptr;
}

}  // namespace objc
