// Method replacement: the hooking framework's entry point and the typed slot for the implementation that a
// replacement displaced.
#pragma once

#include "platform/objc/crossing.h"

/// Replaces the class's method and stores the implementation that was in effect at `displaced`.
extern "C" void MSHookMessageEx(Class hostClass, SEL selector, IMP replacement, IMP* displaced);

namespace objc {

template <typename Signature>
class Displaced;

/// The host's implementation behind a replacement. Filled once by the installer, read ever after; calling
/// the host is one call through it. The signature includes receiver and selector.
template <typename Result, typename... Arguments>
class Displaced<Result(Arguments...)> {
 public:
  Result operator()(Arguments... arguments) const {
    using Across = Crossing<Result(Arguments...)>;
    return Across::call(reinterpret_cast<typename Across::Function>(implementation_), arguments...);
  }

  /// The place that the hooking framework fills.
  IMP* place() { return &implementation_; }

 private:
  IMP implementation_ = nullptr;
};

}  // namespace objc
