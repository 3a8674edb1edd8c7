// One row of the installation table: which method of which host class is replaced or added, and by what. A
// replacement whose signature does not fit its slot does not compile.
#pragma once

#include <concepts>
#include <cstddef>
#include <span>

#include "platform/objc/displaced.h"
#include "platform/objc/encoding.h"

namespace tavimo {

struct HookEntry {
  const char* className;
  const char* selector;
  IMP replacement;
  /// Where the host's implementation is kept; nil for a method that is added.
  IMP* displaced;
  /// The type encoding of a method that is added; nil for a replacement.
  const char* encoding;
};

template <auto Replacement, typename Signature>
requires std::same_as<decltype(Replacement), Signature*> HookEntry
replaceMethod(const char* className, const char* selector, objc::Displaced<Signature>& displaced) {
  return {className, selector, objc::implementationOf<Replacement>(), displaced.place(), nullptr};
}

template <auto Method>
HookEntry addMethod(const char* className, const char* selector) {
  return {className, selector, objc::implementationOf<Method>(), nullptr, objc::encodingOf(Method)};
}

/// Installs one entry on the class.
void install(const HookEntry& entry, Class hostClass);

/// Installs the entries in order; each class is looked up once, just before its first entry.
void install(std::span<const HookEntry> entries);

/// An instance variable of a class that is made at run time: an object, or a simple value.
struct InstanceVariable {
  const char* name;
  const char* encoding;
  std::size_t size;
};

/// Makes the class that the entries name, complete with variables and methods: from then on the host can use
/// it. Does nothing in a process without the superclass, and where the class exists already.
void registerClass(Class superclass, std::span<const InstanceVariable> variables,
                   std::span<const HookEntry> entries);

/// The lock screen entries, in installation order.
std::span<const HookEntry> homeScreenEntries();

/// The entries of the event editor and the event view, in installation order.
std::span<const HookEntry> editorEntries();

/// The variables and methods of the run-time class EKEventOrvItem.
std::span<const InstanceVariable> editItemVariables();
std::span<const HookEntry> editItemEntries();

/// The entries of the run-time class EKEventDetailItemOrv, in installation order.
std::span<const HookEntry> detailItemEntries();

}  // namespace tavimo
