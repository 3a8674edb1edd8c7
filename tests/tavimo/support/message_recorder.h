// Records messages: which ones were sent, in which order, with what. A watched method still does its work.
#pragma once

#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

#include "phone/objc/hooking.h"
#include "tests/tavimo/support/objects.h"

namespace phone {

/// Lines of the form "setTitle: Dentist", in the order sent; the receiver is left out.
inline std::vector<std::string>& sentMessages() {
  static std::vector<std::string> lines;
  return lines;
}

namespace detail {

inline std::map<std::string, IMP>& watchedMethods() {
  static std::map<std::string, IMP> methods;
  return methods;
}

template <typename Value>
std::string describe(Value value) {
  std::ostringstream line;
  if constexpr (std::is_pointer_v<Value> && std::is_class_v<std::remove_pointer_t<Value>>) {
    line << (value == nullptr ? "none" : utf8(objc::send<"description", NSString*>(value)));
  } else {
    line << std::boolalpha << value;
  }
  return line.str();
}

template <typename Result, typename... Arguments>
Result recordAndForward(id self, SEL selector, Arguments... arguments) {
  std::string line = sel_getName(selector);
  ((line += " " + describe(arguments)), ...);
  sentMessages().push_back(line);
  const auto method = watchedMethods().at(sel_getName(selector));
  return reinterpret_cast<Result (*)(id, SEL, Arguments...)>(method)(self, selector, arguments...);
}

template <typename Signature>
struct Recording;
template <typename Result, typename... Arguments>
struct Recording<Result(Arguments...)> {
  static constexpr auto method = recordAndForward<Result, Arguments...>;
};

}  // namespace detail

/// Watches a method of that class: watch<void(NSString*)>("BBBulletin", "setTitle:"). A selector can be
/// watched in one class only. Throws when there is no such method.
template <typename Signature>
void watch(const char* className, const char* selector) {
  auto* const target = static_cast<Class>(objc_getClass(className));
  IMP displaced = nullptr;
  hookMethod(target, sel_registerName(selector), reinterpret_cast<IMP>(detail::Recording<Signature>::method),
             &displaced);
  if (displaced == nullptr || !detail::watchedMethods().emplace(selector, displaced).second) {
    throw std::logic_error(std::string("cannot watch ") + className + " " + selector);
  }
}

}  // namespace phone
