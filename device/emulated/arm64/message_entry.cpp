// 64-bit ARM: messages and calls with variable arguments, as message_send.S hands them on. Variable arguments
// lie on the stack on the phone, eight bytes each.
#include <cstdarg>
#include <cstring>

#include "device/emulated/entry.h"
#include "device/emulated/formatting.h"

extern "C" {

// In message_send.S.
void bridged_objc_msgSend();
void bridged_objc_msgSendSuper();
void bridged_NSLog();
void bridged_stringWithFormat();

/// The method that answers; a message with variable arguments gets one that knows where they are.
IMP bridged_method(id receiver, SEL selector) {
  if (device::isStringWithFormat(selector)) return reinterpret_cast<IMP>(bridged_stringWithFormat);
  return objc_msg_lookup(receiver, selector);
}

IMP bridged_super_method(objc_super* target, SEL selector) { return objc_msg_lookup_super(target, selector); }

}  // extern "C"

namespace device {

namespace {

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
  return formatted(format, list.list);
}

}  // extern "C"

void* messageEntry(const std::string& name) {
  if (name == "objc_msgSend") return reinterpret_cast<void*>(bridged_objc_msgSend);
  if (name == "objc_msgSendSuper") return reinterpret_cast<void*>(bridged_objc_msgSendSuper);
  if (name == "NSLog") return reinterpret_cast<void*>(bridged_NSLog);
  return nullptr;
}

}  // namespace device
