// Method replacement. MSHookMessageEx (platform/objc/displaced.h) is the hooking framework's entry point, and
// is hookMethod() without its result. Nothing here ever ends the host.
#pragma once

#include "platform/objc/displaced.h"

namespace phone {

enum class HookResult {
  kOwn,            ///< The class's own method was replaced.
  kInherited,      ///< An override was added to that class alone; the superclass is unchanged.
  kNoClass,        ///< The class is none. Nothing was done.
  kNoMethod,       ///< Neither the class nor any of its superclasses has the method. Nothing was done.
  kNoReplacement,  ///< The replacement is none. Nothing was done.
};

/// One line for people on what the result means.
const char* describe(HookResult result);

/// The method that hookMethod() displaces: the class's own or the nearest inherited one, or nil. Works on a
/// class that is allocated but not yet registered.
Method methodToDisplace(Class target, SEL selector);

/// Replaces the method that `target` gives its instances (for class methods: pass the metaclass). The
/// implementation that was in effect is at `*displaced` before the replacement is reachable; `displaced` may
/// be none, and is left alone when nothing is done. Hooking twice chains: the second replacement displaces
/// the first. Works on a class that is allocated but not yet registered.
HookResult hookMethod(Class target, SEL selector, IMP replacement, IMP* displaced);

/// The same for a replacement and a slot of one signature.
template <typename Result, typename... Arguments>
HookResult hookMethod(Class target, const char* selector, Result (*replacement)(Arguments...),
                      objc::Displaced<Result(Arguments...)>& displaced) {
  return hookMethod(target, sel_registerName(selector), reinterpret_cast<IMP>(replacement),
                    displaced.place());
}

}  // namespace phone
