#include "tavimo/loader/hook_entry.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace tavimo {

void install(const HookEntry& entry, Class hostClass) {
  SEL const selector = sel_registerName(entry.selector);
  if (entry.displaced != nullptr) {
    MSHookMessageEx(hostClass, selector, entry.replacement, entry.displaced);
  } else {
    class_addMethod(hostClass, selector, entry.replacement, entry.encoding);
  }
}

void install(std::span<const HookEntry> entries) {
  const char* className = "";
  Class hostClass = nullptr;
  for (const HookEntry& entry : entries) {
    if (std::strcmp(entry.className, className) != 0) {
      className = entry.className;
      hostClass = static_cast<Class>(objc_getClass(className));
    }
    install(entry, hostClass);
  }
}

void registerClass(Class superclass, std::span<const InstanceVariable> variables,
                   std::span<const HookEntry> entries) {
  if (superclass == nullptr) return;
  Class const made = objc_allocateClassPair(superclass, entries.front().className, 0);
  if (made == nullptr) return;
  for (const InstanceVariable& variable : variables) {
    // Each is aligned as it is large.
    class_addIvar(made, variable.name, variable.size,
                  static_cast<std::uint8_t>(std::countr_zero(variable.size)), variable.encoding);
  }
  for (const HookEntry& entry : entries) install(entry, made);
  objc_registerClassPair(made);
}

}  // namespace tavimo
