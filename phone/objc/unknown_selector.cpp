#include "phone/objc/unknown_selector.h"

#include <cstdio>
#include <cstdlib>

#include "phone/objc/hooking.h"

namespace phone {

namespace {

void endProcess(id self, SEL, SEL unknown) {
  std::fprintf(stderr, "message %c[%s %s]: no method answers (receiver %p)\n",
               class_isMetaClass(object_getClass(self)) ? '+' : '-', object_getClassName(self),
               sel_getName(unknown), static_cast<void*>(self));
  std::abort();
}

}  // namespace

void endOnUnknownSelectors() {
  static const bool done = [] {
    Class const root = requiredClass("NSObject");
    SEL const selector = sel_registerName("doesNotRecognizeSelector:");
    const auto replacement = reinterpret_cast<IMP>(endProcess);
    // An instance method of a root class answers for its class objects as well, where they have none of their
    // own.
    hookMethod(root, selector, replacement, nullptr);
    hookMethod(object_getClass(reinterpret_cast<id>(root)), selector, replacement, nullptr);
    return true;
  }();
  static_cast<void>(done);
}

Class requiredClass(const char* name) {
  auto* const found = static_cast<Class>(objc_getClass(name));
  if (found == nullptr) {
    std::fprintf(stderr, "there is no class %s\n", name);
    std::abort();
  }
  return found;
}

}  // namespace phone
