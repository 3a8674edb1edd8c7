// What the host does with a format and its variable arguments, once these are in this machine's form.
#pragma once

#include <cstdarg>
#include <cstring>

#include "platform/foundation/ns_string.h"
#include "platform/objc/owned.h"

extern "C" void NSLogv(NSString* format, std::va_list arguments);

namespace device {

/// The one message with variable arguments that plug-ins send.
inline bool isStringWithFormat(SEL selector) {
  return std::strcmp(sel_getName(selector), "stringWithFormat:") == 0;
}

/// The autoreleased text that it gives.
inline id formatted(NSString* format, std::va_list arguments) {
  using Initializer = id (*)(id, SEL, NSString*, std::va_list);
  id const text = objc::sendToClass<NSString, "alloc", id>();
  SEL const selector = objc::selector<"initWithFormat:arguments:">();
  const auto initialize = reinterpret_cast<Initializer>(objc_msg_lookup(text, selector));
  return objc::send<"autorelease", id>(initialize(text, selector, format, arguments));
}

}  // namespace device
