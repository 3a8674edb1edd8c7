// An autorelease pool for the length of a scope.
#pragma once

#include "platform/objc/send.h"

class AutoreleasePool {
 public:
  AutoreleasePool() : pool_(objc::send<"init", id>(objc::sendToClass<"NSAutoreleasePool", "alloc", id>())) {}
  ~AutoreleasePool() { objc::send<"drain">(pool_); }
  AutoreleasePool(const AutoreleasePool&) = delete;
  AutoreleasePool& operator=(const AutoreleasePool&) = delete;

 private:
  id pool_;
};
