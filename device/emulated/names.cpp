#include "device/emulated/names.h"

#include <array>
#include <dlfcn.h>

#include "device/emulated/crash_report.h"
#include "device/emulated/entry.h"
#include "phone/objc/hooking.h"

namespace device {

extern "C" {

/// GCC's header has it inline only.
Class bridged_object_getClass(id object) { return object == nullptr ? nullptr : object->class_pointer; }

void bridged_MSHookMessageEx(Class hostClass, SEL selector, IMP replacement, IMP* displaced) {
  Method const method = phone::methodToDisplace(hostClass, selector);
  const char* const encoding = method == nullptr ? "v@:" : method_getTypeEncoding(method);
  IMP host = nullptr;
  MSHookMessageEx(hostClass, selector, enteredAsOnPhones(replacement, encoding), &host);
  if (host != nullptr && displaced != nullptr) *displaced = calledAsOnPhones(host, encoding);
}

BOOL bridged_class_addMethod(Class target, SEL selector, IMP implementation, const char* encoding) {
  return class_addMethod(target, selector, enteredAsOnPhones(implementation, encoding), encoding);
}

/// Names are looked up when the library is loaded, so its code never gets here.
[[noreturn]] void bridged_binder() { reportAndEnd("the plug-in asked for a name to be looked up late"); }

[[noreturn]] void bridged_broken_stack() { reportAndEnd("the plug-in wrote beyond its local variables"); }

}  // extern "C"

namespace {

/// What compiled code puts beside its locals and looks at again before it returns.
std::uintptr_t stackGuard = static_cast<std::uintptr_t>(0x5bd1e995a7c34f00);

void* address(const std::string& name) {
  struct Bridge {
    const char* name;
    void* address;
  };
  static const std::array bridges{
      Bridge{"object_getClass", reinterpret_cast<void*>(bridged_object_getClass)},
      Bridge{"MSHookMessageEx", reinterpret_cast<void*>(bridged_MSHookMessageEx)},
      Bridge{"class_addMethod", reinterpret_cast<void*>(bridged_class_addMethod)},
      Bridge{"__stack_chk_guard", &stackGuard},
      Bridge{"__stack_chk_fail", reinterpret_cast<void*>(bridged_broken_stack)},
      // The file has this one without an underscore of its own.
      Bridge{"dyld_stub_binder", reinterpret_cast<void*>(bridged_binder)},
  };
  for (const Bridge& bridge : bridges) {
    if (name == bridge.name) return bridge.address;
  }
  return dlsym(RTLD_DEFAULT, name.c_str());
}

}  // namespace

void* hostAddress(const std::string& name) {
  if (void* const entry = messageEntry(name); entry != nullptr) return entry;
  return nameAsOnPhones(address(name));
}

}  // namespace device
