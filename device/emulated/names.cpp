#include "device/emulated/names.h"

#include <array>
#include <cstdarg>
#include <cstring>
#include <dlfcn.h>

#include "device/emulated/crash_report.h"
#include "device/emulated/entry.h"
#include "phone/objc/hooking.h"
#include "platform/foundation/ns_string.h"
#include "platform/objc/owned.h"

extern "C" {

void NSLogv(NSString* format, std::va_list arguments);

// In message_send.S.
void bridged_objc_msgSend();
void bridged_objc_msgSendSuper();
void bridged_NSLog();
void bridged_stringWithFormat();

/// What compiled code puts beside its locals and looks at again before it returns.
std::uintptr_t bridged_stack_guard = 0x5bd1e995a7c34f00;

/// The method that answers; a message with variable arguments gets one that knows where they are.
IMP bridged_method(id receiver, SEL selector) {
  if (std::strcmp(sel_getName(selector), "stringWithFormat:") == 0)
    return reinterpret_cast<IMP>(bridged_stringWithFormat);
  return objc_msg_lookup(receiver, selector);
}

IMP bridged_super_method(objc_super* target, SEL selector) { return objc_msg_lookup_super(target, selector); }

}  // extern "C"

namespace device {

namespace {

/// A list of variable arguments as the phone's compilers pass them: on the stack, eight bytes each.
class StackArguments {
 public:
  explicit StackArguments([[maybe_unused]] void* first) {
#if defined(__aarch64__)
    // The parts of a va_list for 64-bit ARM: no argument is left in a register, so all come from the stack.
    struct Parts {
      void* stack;
      void* integersEnd;
      void* vectorsEnd;
      int integersOffset;
      int vectorsOffset;
    } const parts{first, nullptr, nullptr, 0, 0};
    static_assert(sizeof(parts) == sizeof(list));
    std::memcpy(&list, &parts, sizeof(parts));
#endif
  }

  std::va_list list{};
};

}  // namespace

extern "C" {

void bridged_log(NSString* format, void* arguments) { NSLogv(format, StackArguments(arguments).list); }

id bridged_format(Class, SEL, NSString* format, void* arguments) {
  StackArguments list(arguments);
  using Initializer = id (*)(id, SEL, NSString*, std::va_list);
  id const text = objc::sendToClass<NSString, "alloc", id>();
  SEL const selector = objc::selector<"initWithFormat:arguments:">();
  const auto initialize = reinterpret_cast<Initializer>(objc_msg_lookup(text, selector));
  return objc::send<"autorelease", id>(initialize(text, selector, format, list.list));
}

/// GCC's header has it inline only.
Class bridged_object_getClass(id object) { return object == nullptr ? nullptr : object->class_pointer; }

void bridged_MSHookMessageEx(Class hostClass, SEL selector, IMP replacement, IMP* displaced) {
  Method const method = phone::methodToDisplace(hostClass, selector);
  IMP const entered =
      method == nullptr ? replacement : enteredAsOnPhones(replacement, method_getTypeEncoding(method));
  MSHookMessageEx(hostClass, selector, entered, displaced);
}

BOOL bridged_class_addMethod(Class target, SEL selector, IMP implementation, const char* encoding) {
  return class_addMethod(target, selector, enteredAsOnPhones(implementation, encoding), encoding);
}

/// Names are looked up when the library is loaded, so its code never gets here.
[[noreturn]] void bridged_binder() { reportAndEnd("the plug-in asked for a name to be looked up late"); }

[[noreturn]] void bridged_broken_stack() { reportAndEnd("the plug-in wrote beyond its local variables"); }

}  // extern "C"

void* hostAddress(const std::string& name) {
  struct Bridge {
    const char* name;
    void* address;
  };
  static const std::array bridges{
      Bridge{"objc_msgSend", reinterpret_cast<void*>(bridged_objc_msgSend)},
      Bridge{"objc_msgSendSuper", reinterpret_cast<void*>(bridged_objc_msgSendSuper)},
      Bridge{"object_getClass", reinterpret_cast<void*>(bridged_object_getClass)},
      Bridge{"MSHookMessageEx", reinterpret_cast<void*>(bridged_MSHookMessageEx)},
      Bridge{"class_addMethod", reinterpret_cast<void*>(bridged_class_addMethod)},
      Bridge{"NSLog", reinterpret_cast<void*>(bridged_NSLog)},
      Bridge{"__stack_chk_guard", &bridged_stack_guard},
      Bridge{"__stack_chk_fail", reinterpret_cast<void*>(bridged_broken_stack)},
      // The file has this one without an underscore of its own.
      Bridge{"dyld_stub_binder", reinterpret_cast<void*>(bridged_binder)},
  };
  for (const Bridge& bridge : bridges) {
    if (name == bridge.name) return bridge.address;
  }
  return dlsym(RTLD_DEFAULT, name.c_str());
}

}  // namespace device
