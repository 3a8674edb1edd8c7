// The running program.
#pragma once

#include "platform/foundation/ns_object.h"

class NSArray;

class UIApplication : public NSObject {
 public:
  UIApplication() = delete;

  /// Nil before the host has one.
  static UIApplication* sharedApplication() {
    return objc::sendToClass<UIApplication, "sharedApplication", UIApplication*>();
  }
  NSArray* windows() { return objc::send<"windows", NSArray*>(this); }
};
