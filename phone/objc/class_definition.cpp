#include "phone/objc/class_definition.h"

#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>

#include "platform/foundation/foundation_version.h"

namespace phone {

namespace {

/// What an instance of one class holds beyond its superclass's part.
struct InstanceLayout {
  std::vector<std::ptrdiff_t> strongIvars;
  std::optional<StateDefinition> state;
};

std::map<Class, InstanceLayout>& layouts() {
  // Never destroyed: objects are released until the very end of the process.
  static auto& all = *new std::map<Class, InstanceLayout>;
  return all;
}

bool isAvailable(const Availability& availability) {
  return availability.since <= NSFoundationVersionNumber && NSFoundationVersionNumber < availability.before;
}

[[noreturn]] void fail(const char* className, const char* reason, const char* detail) {
  std::fprintf(stderr, "class %s cannot be registered: %s %s\n", className, reason, detail);
  std::abort();
}

std::byte* bytesOf(id object) { return reinterpret_cast<std::byte*>(object); }

void constructFrom(Class current, id object) {
  if (current == nullptr) return;
  constructFrom(class_getSuperclass(current), object);
  const auto layout = layouts().find(current);
  if (layout == layouts().end() || !layout->second.state) return;
  layout->second.state->construct(bytesOf(object) + *layout->second.state->offset);
}

// Foundation sends these two at alloc and dealloc to every class that has them, as it does for C++ members
// of compiled classes. The topmost class of the phone in a chain has them and serves its subclasses too.
id constructInstance(id self, SEL) {
  constructFrom(object_getClass(self), self);
  return self;
}

void destroyInstance(id self, SEL) {
  for (Class current = object_getClass(self); current != nullptr; current = class_getSuperclass(current)) {
    const auto layout = layouts().find(current);
    if (layout == layouts().end()) continue;
    const auto& [strongIvars, state] = layout->second;
    if (state) state->destroy(bytesOf(self) + *state->offset);
    for (const std::ptrdiff_t offset : strongIvars) {
      objc::assignStrong<objc_object>(*reinterpret_cast<id*>(bytesOf(self) + offset), nullptr);
    }
  }
}

/// The runtime takes no variable whose name a superclass has already, so each class's state has its own.
std::string stateIvarName(const ClassDefinition& definition) {
  return "_stateOf" + std::string(definition.name);
}

void addIvars(Class target, const ClassDefinition& definition) {
  for (const IvarDefinition& ivar : definition.ivars) {
    if (!isAvailable(ivar.availability)) continue;
    if (!class_addIvar(target, ivar.name, sizeof(id), std::countr_zero(alignof(id)), "@")) {
      fail(definition.name, "its instance variable cannot be added:", ivar.name);
    }
  }
  if (!definition.state) return;
  const std::string encoding = "[" + std::to_string(definition.state->size) + "c]";
  if (!class_addIvar(target, stateIvarName(definition).c_str(), definition.state->size,
                     static_cast<std::uint8_t>(std::countr_zero(definition.state->alignment)),
                     encoding.c_str())) {
    fail(definition.name, "its instance variable cannot be added:", "its state");
  }
}

void addMethod(Class target, const char* className, const MethodDefinition& method) {
  if (!isAvailable(method.availability)) return;
  Class const owner = method.ofClass ? object_getClass(reinterpret_cast<id>(target)) : target;
  if (!class_addMethod(owner, sel_registerTypedName(method.selector, method.types), method.implementation,
                       method.types)) {
    fail(className, "it states a method twice:", method.selector);
  }
}

void addMethods(Class target, const ClassDefinition& definition) {
  for (const MethodRows& rows : definition.methods) {
    for (const MethodDefinition& method : rows.methods()) addMethod(target, definition.name, method);
  }
}

InstanceLayout layoutOf(Class target, const ClassDefinition& definition) {
  InstanceLayout layout;
  for (const IvarDefinition& ivar : definition.ivars) {
    if (!ivar.strong || !isAvailable(ivar.availability)) continue;
    layout.strongIvars.push_back(ivar_getOffset(class_getInstanceVariable(target, ivar.name)));
  }
  if (definition.state) {
    *definition.state->offset =
        ivar_getOffset(class_getInstanceVariable(target, stateIvarName(definition).c_str()));
    layout.state = definition.state;
  }
  return layout;
}

bool chainHasPhoneClass(Class current) {
  for (; current != nullptr; current = class_getSuperclass(current)) {
    if (layouts().contains(current)) return true;
  }
  return false;
}

}  // namespace

Class registerClass(const ClassDefinition& definition) {
  auto* const superclass = static_cast<Class>(objc_getClass(definition.superclass));
  if (superclass == nullptr) fail(definition.name, "there is no superclass", definition.superclass);
  Class const target = objc_allocateClassPair(superclass, definition.name, 0);
  if (target == nullptr) fail(definition.name, "there is a class of that name already", "");
  addIvars(target, definition);
  addMethods(target, definition);
  if (!chainHasPhoneClass(superclass)) {
    class_addMethod(target, sel_registerName(".cxx_construct"), reinterpret_cast<IMP>(constructInstance),
                    "@@:");
    class_addMethod(target, sel_registerName(".cxx_destruct"), reinterpret_cast<IMP>(destroyInstance), "v@:");
  }
  objc_registerClassPair(target);
  layouts().emplace(target, layoutOf(target, definition));
  return target;
}

void registerClasses(std::initializer_list<ClassDefinition (*)()> definitions) {
  for (const auto define : definitions) registerClass(define());
}

}  // namespace phone
