// Constant texts: "abc"_ns is one immortal NSString per distinct literal, made at its first use.
#pragma once

#include "platform/foundation/ns_string.h"

template <objc::FixedString Text>
inline NSString* operator""_ns() {
  static NSString* const text = objc::send<"initWithUTF8String:", NSString*>(
      objc::sendToClass<"NSString", "alloc", NSString*>(), Text.c_str());
  return text;
}
