#include "phone/objc/hooking.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace phone {

namespace {

/// A class between objc_allocateClassPair and objc_registerClassPair, or the metaclass of one.
bool isInConstruction(Class target) {
  auto* const registered = static_cast<Class>(objc_lookUpClass(class_getName(target)));
  if (registered == nullptr) return true;
  Class const counterpart =
      class_isMetaClass(target) ? object_getClass(reinterpret_cast<id>(registered)) : registered;
  return counterpart != target;
}

/// The method that the class itself states, not one that it inherits. GCC's class_getInstanceMethod searches
/// the superclasses too, and crashes on a class in construction, whose methods still carry plain texts as
/// their names.
Method ownMethod(Class target, SEL selector) {
  const bool inConstruction = isInConstruction(target);
  unsigned int count = 0;
  Method* const methods = class_copyMethodList(target, &count);
  Method found = nullptr;
  for (unsigned int i = 0; i < count && found == nullptr; ++i) {
    SEL const name = method_getName(methods[i]);
    const char* const text = inConstruction ? reinterpret_cast<const char*>(name) : sel_getName(name);
    if (std::strcmp(text, sel_getName(selector)) == 0) found = methods[i];
  }
  std::free(methods);
  return found;
}

/// The nearest statement of a method, from the class upwards.
struct Statement {
  Class owner;
  Method method;
};

/// Both are nil when nobody states it.
Statement nearestStatement(Class target, SEL selector) {
  for (Class owner = target; owner != nullptr; owner = class_getSuperclass(owner)) {
    if (Method const method = ownMethod(owner, selector); method != nullptr) return {owner, method};
  }
  return {};
}

}  // namespace

const char* describe(HookResult result) {
  switch (result) {
    case HookResult::kOwn:
      return "the class's own method was replaced";
    case HookResult::kInherited:
      return "an override was added to the class";
    case HookResult::kNoClass:
      return "there is no such class";
    case HookResult::kNoMethod:
      return "neither the class nor a superclass has the method";
    case HookResult::kNoReplacement:
      return "there is no replacement";
  }
  return "unknown";
}

Method methodToDisplace(Class target, SEL selector) {
  return selector == nullptr ? nullptr : nearestStatement(target, selector).method;
}

HookResult hookMethod(Class target, SEL selector, IMP replacement, IMP* displaced) {
  if (target == nullptr) return HookResult::kNoClass;
  if (selector == nullptr) return HookResult::kNoMethod;
  if (replacement == nullptr) return HookResult::kNoReplacement;
  const auto [owner, method] = nearestStatement(target, selector);
  if (method == nullptr) return HookResult::kNoMethod;
  if (displaced != nullptr) *displaced = method_getImplementation(method);
  if (owner == target) {
    method_setImplementation(method, replacement);
    return HookResult::kOwn;
  }
  // class_replaceMethod would overwrite the superclass's implementation here.
  class_addMethod(target, selector, replacement, method_getTypeEncoding(method));
  return HookResult::kInherited;
}

}  // namespace phone

extern "C" void MSHookMessageEx(Class hostClass, SEL selector, IMP replacement, IMP* displaced) {
  using phone::HookResult;
  const HookResult result = phone::hookMethod(hostClass, selector, replacement, displaced);
  if (result == HookResult::kOwn || result == HookResult::kInherited) return;
  std::fprintf(stderr, "MSHookMessageEx: [%s %s] is not replaced: %s\n",
               hostClass == nullptr ? "none" : class_getName(hostClass),
               selector == nullptr ? "none" : sel_getName(selector), phone::describe(result));
}
