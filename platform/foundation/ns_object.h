// The root of all views. A view stands for an object of the platform: it has no data, is never constructed,
// and each of its methods is one message send. Calling a method through a null view pointer is a message to
// nil and gives zero; every target that uses the views is compiled so that this holds.
#pragma once

#include "platform/objc/class_of.h"

class NSString;

using NSInteger = long;
using NSUInteger = unsigned long;

/// What the platform's searches give for "not found".
inline constexpr NSUInteger NSNotFound = static_cast<NSUInteger>(__LONG_MAX__);

class NSObject : public objc_object {
 public:
  NSObject() = delete;

  bool isKindOfClass(Class kind) { return objc::send<"isKindOfClass:", bool>(this, kind); }
  bool respondsToSelector(SEL selector) { return objc::send<"respondsToSelector:", bool>(this, selector); }
  bool isEqual(NSObject* other) { return objc::send<"isEqual:", bool>(this, other); }
  NSString* description() { return objc::send<"description", NSString*>(this); }
  NSObject* mutableCopy() { return objc::send<"mutableCopy", NSObject*>(this); }
  void performSelector(SEL selector, NSObject* argument, double delaySeconds) {
    objc::send<"performSelector:withObject:afterDelay:">(this, selector, argument, delaySeconds);
  }
};

extern "C" {
/// The class's name as a text (borrowed); nil for no class.
NSString* NSStringFromClass(Class aClass);
}
