// Constant texts, each one immortal NSString that is made at its first use.
#pragma once

#include "platform/foundation/ns_string.h"

/// For constants: constantText<kName>().
template <objc::FixedString Text>
inline NSString* constantText() {
  static NSString* const text = objc::send<"initWithUTF8String:", NSString*>(
      objc::sendToClass<NSString, "alloc", NSString*>(), Text.c_str());
  return text;
}

/// For literals: "abc"_ns.
template <objc::FixedString Text>
inline NSString* operator""_ns() {
  return constantText<Text>();
}
