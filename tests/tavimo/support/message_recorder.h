// Records messages, and what is logged between them: which ones were sent, in which order, with what. A
// watched method still does its work.
#pragma once

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "phone/foundation/log_sink.h"
#include "phone/objc/class_definition.h"
#include "phone/objc/hooking.h"
#include "platform/coregraphics/cg_geometry.h"
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
  if constexpr (std::is_same_v<Value, SEL>) {
    line << sel_getName(value);
  } else if constexpr (std::is_pointer_v<Value> && std::is_class_v<std::remove_pointer_t<Value>>) {
    line << (value == nullptr ? "none" : utf8(objc::send<"description", NSString*>(value)));
  } else if constexpr (std::is_same_v<Value, CGRect>) {
    line << utf8(NSStringFromCGRect(value));
  } else {
    line << std::boolalpha << value;
  }
  return line.str();
}

/// Whether logged lines are moved among the messages; otherwise they stay in the log.
inline bool& isTracing() {
  static bool tracing = false;
  return tracing;
}
inline void recordLog() {
  if (!isTracing()) return;
  for (const std::string& line : logLines()) sentMessages().push_back("log " + line);
  clearLog();
}

template <typename... Arguments>
void record(SEL selector, Arguments... arguments) {
  recordLog();
  std::string line = sel_getName(selector);
  ((line += " " + describe(arguments)), ...);
  sentMessages().push_back(line);
}

template <typename Result, typename... Arguments>
Result recordAndForward(id self, SEL selector, Arguments... arguments) {
  record(selector, arguments...);
  const auto method = watchedMethods().at(sel_getName(selector));
  return reinterpret_cast<Result (*)(id, SEL, Arguments...)>(method)(self, selector, arguments...);
}

template <typename Result, typename... Arguments>
Result recordAndAnswer(id self, SEL selector, Arguments... arguments) {
  record(selector, arguments...);
  if constexpr (std::is_pointer_v<Result>) {
    return static_cast<Result>(static_cast<void*>(self));
  } else if constexpr (!std::is_void_v<Result>) {
    return static_cast<Result>(42);
  }
}

template <typename Signature>
struct Recording;
template <typename Result, typename... Arguments>
struct Recording<Result(Arguments...)> {
  static constexpr auto forward = recordAndForward<Result, Arguments...>;
  static constexpr auto answer = recordAndAnswer<Result, Arguments...>;
};

}  // namespace detail

/// What `work` sends and logs, in order; a logged line is "log " and the line.
template <typename Work>
std::vector<std::string> traceOf(Work work) {
  sentMessages().clear();
  clearLog();
  detail::isTracing() = true;
  work();
  detail::recordLog();
  detail::isTracing() = false;
  return std::exchange(sentMessages(), {});
}

/// Success when there are as many lines as beginnings, and each line begins as it should.
inline testing::AssertionResult beginAs(const std::vector<std::string>& lines,
                                        const std::vector<std::string>& beginnings) {
  const bool agree = std::ranges::equal(
      lines, beginnings, [](const auto& line, const auto& beginning) { return line.starts_with(beginning); });
  if (agree) return testing::AssertionSuccess();
  return testing::AssertionFailure() << testing::PrintToString(lines) << " do not begin as "
                                     << testing::PrintToString(beginnings);
}

/// Watches a method of that class: watch<void(NSString*)>("BBBulletin", "setTitle:"). A selector can be
/// watched in one class only. Throws when there is no such method.
template <typename Signature>
void watch(const char* className, const char* selector) {
  auto* const target = static_cast<Class>(objc_getClass(className));
  IMP displaced = nullptr;
  hookMethod(target, sel_registerName(selector), reinterpret_cast<IMP>(detail::Recording<Signature>::forward),
             &displaced);
  if (displaced == nullptr || !detail::watchedMethods().emplace(selector, displaced).second) {
    throw std::logic_error(std::string("cannot watch ") + className + " " + selector);
  }
}

/// A method of a class of the test's own that is recorded and does nothing else. It answers with its
/// receiver, or with 42, true or nothing, as its result type has it.
template <typename Signature>
MethodDefinition recorded(const char* selector) {
  return method(selector, detail::Recording<Signature>::answer);
}

}  // namespace phone
