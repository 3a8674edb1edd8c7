#include "tests/tavimo/loader/installation_record.h"

#include <dlfcn.h>
#include <utility>

#include "phone/objc/hooking.h"
#include "phone/objc/plugin.h"
#include "tests/support/built.h"

namespace phone {

namespace {

std::vector<std::string> steps;
bool recording = false;

std::string nameOf(Class target) { return target == nullptr ? "none" : class_getName(target); }

/// The function that this program's own hides.
template <typename Function>
Function* hidden(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

std::vector<std::string> installationSteps() {
  recording = true;
  loadPlugin(pluginLibrary());
  recording = false;
  return steps;
}

}  // namespace phone

extern "C" void MSHookMessageEx(Class hostClass, SEL selector, IMP replacement, IMP* displaced) {
  phone::steps.push_back("replace " + phone::nameOf(hostClass) + " " + sel_getName(selector));
  const bool recorded = std::exchange(phone::recording, false);
  phone::hookMethod(hostClass, selector, replacement, displaced);
  phone::recording = recorded;
}

extern "C" BOOL class_addMethod(Class target, SEL selector, IMP implementation, const char* types) {
  if (phone::recording) {
    phone::steps.push_back("add " + phone::nameOf(target) + " " + sel_getName(selector) + " " + types);
  }
  return phone::hidden<decltype(class_addMethod)>("class_addMethod")(target, selector, implementation, types);
}

extern "C" void objc_registerClassPair(Class made) {
  if (phone::recording) phone::steps.push_back("register " + phone::nameOf(made));
  phone::hidden<decltype(objc_registerClassPair)>("objc_registerClassPair")(made);
}
