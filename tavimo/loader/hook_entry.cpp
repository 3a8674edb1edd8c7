#include "tavimo/loader/hook_entry.h"

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

}  // namespace tavimo
