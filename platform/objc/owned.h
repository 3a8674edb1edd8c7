// Owned references. A raw pointer is borrowed: autoreleased, or owned by somebody else. Retain and release
// appear nowhere but here.
#pragma once

#include <utility>

#include "platform/objc/class_of.h"

namespace objc {

/// Holds one strong reference, or nil, and releases it.
template <typename Type>
class Owned {
 public:
  Owned() = default;
  Owned(const Owned& other) : Owned(retain(other.object_)) {}
  Owned(Owned&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
  Owned& operator=(Owned other) noexcept {
    std::swap(object_, other.object_);
    return *this;
  }
  ~Owned() { send<"release">(object_); }

  /// Takes over a reference that the caller owns (the result of alloc and init, or of a copy).
  static Owned adopt(Type* object) { return Owned(object); }
  /// Adds a reference of its own to a borrowed object.
  static Owned retain(Type* object) {
    send<"retain", id>(object);
    return Owned(object);
  }

  /// Borrowed; nil when empty.
  Type* get() const { return object_; }
  Type* operator->() const { return object_; }
  explicit operator bool() const { return object_ != nullptr; }

  /// Hands the reference to the caller, who must release it; leaves nil behind.
  Type* relinquish() { return std::exchange(object_, nullptr); }
  /// Hands the reference to the current autorelease pool and gives the object back, borrowed.
  Type* autorelease() {
    Type* const object = relinquish();
    send<"autorelease", id>(object);
    return object;
  }

 private:
  explicit Owned(Type* object) : object_(object) {}

  Type* object_ = nullptr;
};

/// A new instance of the view's class by alloc and init; nil when the class does not exist.
template <typename View>
inline Owned<View> make() {
  return Owned<View>::adopt(send<"init", View*>(sendToClass<View, "alloc", id>()));
}

/// A new instance by alloc and the named initialiser; nil when the class does not exist or the initialiser
/// gives nil.
template <typename View, FixedString Initializer, typename... Arguments>
inline Owned<View> makeWith(Arguments... arguments) {
  return Owned<View>::adopt(send<Initializer, View*>(sendToClass<View, "alloc", id>(), arguments...));
}

// The same for a class that has no view, or an instance of a subclass of the view's class.

template <typename View, FixedString ClassName>
inline Owned<View> make() {
  return Owned<View>::adopt(send<"init", View*>(sendToClass<ClassName, "alloc", id>()));
}

template <typename View, FixedString ClassName, FixedString Initializer, typename... Arguments>
inline Owned<View> makeWith(Arguments... arguments) {
  return Owned<View>::adopt(send<Initializer, View*>(sendToClass<ClassName, "alloc", id>(), arguments...));
}

/// Puts a strong reference to `value` into a plain pointer that owns what it holds, for fields whose form
/// other programs rely on. The old value is released last, so replacing a value with itself is safe.
template <typename Type>
inline void assignStrong(Type*& field, Type* value) {
  auto replacement = Owned<Type>::retain(value);
  Owned<Type>::adopt(std::exchange(field, replacement.relinquish()));
}

}  // namespace objc
