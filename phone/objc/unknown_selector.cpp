#include "phone/objc/unknown_selector.h"

#include <cstdio>
#include <cstdlib>

#include "phone/objc/hooking.h"
#include "platform/objc/send.h"

namespace phone {

namespace {

using Forwarder = IMP (*)(id, SEL);

Forwarder foundationForwarder = nullptr;

[[noreturn]] void endProcess(id receiver, SEL unknown) {
  std::fprintf(stderr, "message %c[%s %s]: no method answers (receiver %p)\n",
               class_isMetaClass(object_getClass(receiver)) ? '+' : '-', object_getClassName(receiver),
               sel_getName(unknown), static_cast<void*>(receiver));
  std::abort();
}

/// The runtime asks here for a method when a class has none. An object that forwards messages says so by a
/// signature.
IMP forward(id receiver, SEL unknown) {
  if (objc::send<"methodSignatureForSelector:", id>(receiver, unknown) == nullptr)
    endProcess(receiver, unknown);
  return foundationForwarder(receiver, unknown);
}

/// Reached when the selector carries a signature of its own, so that Foundation forwards it first.
void doesNotRecognize(id self, SEL, SEL unknown) { endProcess(self, unknown); }

}  // namespace

void endOnUnknownSelectors() {
  if (foundationForwarder != nullptr) return;
  foundationForwarder = __objc_msg_forward2;
  __objc_msg_forward2 = forward;
  Class const root = requiredClass("NSObject");
  SEL const selector = sel_registerName("doesNotRecognizeSelector:");
  for (Class const owner : {root, object_getClass(reinterpret_cast<id>(root))}) {
    hookMethod(owner, selector, reinterpret_cast<IMP>(doesNotRecognize), nullptr);
  }
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
