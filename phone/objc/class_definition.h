// Host classes as data: a definition states name, superclass, instance variables and methods in one place;
// type encodings are deduced from the C++ signatures.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <limits>
#include <new>
#include <optional>
#include <string>
#include <vector>

#include "platform/foundation/foundation_version.h"
#include "platform/objc/encoding.h"
#include "platform/objc/ivar.h"

namespace phone {

/// Foundation version numbers bound the releases that have a method or variable: since <= version < before.
struct Availability {
  double since = -std::numeric_limits<double>::infinity();
  double before = std::numeric_limits<double>::infinity();
};

inline constexpr Availability kEveryRelease{};
inline constexpr Availability kUntilIos7{.before = kFirstIos8Foundation};
inline constexpr Availability kSinceIos8{.since = kFirstIos8Foundation};

struct MethodDefinition {
  const char* selector;
  IMP implementation;
  const char* types;
  bool ofClass = false;
  Availability availability = {};
};

/// An instance variable that holds an object. A strong one is released with its owner.
struct IvarDefinition {
  const char* name;
  bool strong = true;
  Availability availability = {};
};

/// C++ state kept inside each instance: constructed by alloc, destroyed by dealloc.
struct StateDefinition {
  std::size_t size;
  std::size_t alignment;
  void (*construct)(void*);
  void (*destroy)(void*);
  std::ptrdiff_t* offset;
};

/// What one row of a definition adds: a method, or a property's two.
class MethodRows {
 public:
  // NOLINTNEXTLINE(google-explicit-constructor): a method is a row.
  MethodRows(const MethodDefinition& method) : methods_{method} {}
  MethodRows(const MethodDefinition& getter, const MethodDefinition& setter) : methods_{getter, setter} {}

  const std::vector<MethodDefinition>& methods() const { return methods_; }

 private:
  std::vector<MethodDefinition> methods_;
};

struct ClassDefinition {
  const char* name;
  const char* superclass;
  std::vector<IvarDefinition> ivars = {};
  std::optional<StateDefinition> state = {};
  std::vector<MethodRows> methods = {};
};

/// Registers the class for the running release of the phone. Ends the process with a message when the
/// superclass is missing or the name is taken: both are mistakes in the stand-in itself.
Class registerClass(const ClassDefinition& definition);

/// The same for what each function gives, in order: a superclass stands before its subclasses.
void registerClasses(std::initializer_list<ClassDefinition (*)()> definitions);

/// An instance method: `result function(Self*, SEL, arguments...)`.
template <typename Result, typename Self, typename... Arguments>
MethodDefinition method(const char* selector, Result (*function)(Self*, SEL, Arguments...),
                        Availability availability = {}) {
  return {selector, reinterpret_cast<IMP>(function),
          objc::MethodEncoding<Result, Arguments...>::value.c_str(), false, availability};
}

/// A class method: `result function(Class, SEL, arguments...)`.
template <typename Result, typename... Arguments>
MethodDefinition classMethod(const char* selector, Result (*function)(Class, SEL, Arguments...),
                             Availability availability = {}) {
  return {selector, reinterpret_cast<IMP>(function),
          objc::MethodEncoding<Result, Arguments...>::value.c_str(), true, availability};
}

namespace detail {
template <typename State>
inline std::ptrdiff_t stateOffset = -1;
}  // namespace detail

/// Declares C++ state for a class; stateOf<State>() finds it in an instance. One class per state type.
template <typename State>
StateDefinition state() {
  return {sizeof(State), alignof(State), [](void* place) { new (place) State(); },
          [](void* place) { static_cast<State*>(place)->~State(); }, &detail::stateOffset<State>};
}

/// The state of an instance of the class (or of a subclass) that declared it. `object` must not be none.
template <typename State>
State& stateOf(const void* object) {
  auto* const bytes = static_cast<std::byte*>(const_cast<void*>(object));
  return *std::launder(reinterpret_cast<State*>(bytes + detail::stateOffset<State>));
}

/// The accessors of a plain member of a class's state, for definitions: `getter<&State::flag>("isFlag")`, and
/// property() for a member with both a getter and
/// a setter. Object members are Owned<T>.
template <typename Member>
struct StateMember;

template <typename State, typename Value>
struct StateMember<Value State::*> {
  using Owner = State;
  using Type = Value;
  static const Value& get(const Value& value) { return value; }
  static void set(Value& place, Value value) { place = value; }
  using Plain = Value;
};

template <typename State, typename View>
struct StateMember<objc::Owned<View> State::*> {
  using Owner = State;
  static View* get(const objc::Owned<View>& value) { return value.get(); }
  static void set(objc::Owned<View>& place, View* value) { place = objc::Owned<View>::retain(value); }
  using Plain = View*;
};

template <auto Member>
typename StateMember<decltype(Member)>::Plain readMember(id self, SEL /*selector*/) {
  using Access = StateMember<decltype(Member)>;
  return Access::get(stateOf<typename Access::Owner>(self).*Member);
}

template <auto Member>
void writeMember(id self, SEL /*selector*/, typename StateMember<decltype(Member)>::Plain value) {
  using Access = StateMember<decltype(Member)>;
  Access::set(stateOf<typename Access::Owner>(self).*Member, value);
}

template <auto Member>
MethodDefinition getter(const char* selector, Availability availability = {}) {
  return method(selector, readMember<Member>, availability);
}

template <auto Member>
MethodDefinition setter(const char* selector, Availability availability = {}) {
  return method(selector, writeMember<Member>, availability);
}

namespace detail {

/// "title" becomes "setTitle:".
template <objc::FixedString Getter>
inline constexpr auto kSetter = [] {
  auto setter = objc::FixedString("set") + Getter + objc::FixedString(":");
  char& initial = setter.characters[3];
  if (initial >= 'a' && initial <= 'z') initial = static_cast<char>(initial - 'a' + 'A');
  return setter;
}();

}  // namespace detail

/// Getter and setter of one member: `property<&State::title, "title">()`.
template <auto Member, objc::FixedString Getter, objc::FixedString Setter = detail::kSetter<Getter>>
MethodRows property(Availability availability = {}) {
  static constexpr objc::FixedString kGetter = Getter;
  static constexpr objc::FixedString kSetter = Setter;
  return {method(kGetter.c_str(), readMember<Member>, availability),
          method(kSetter.c_str(), writeMember<Member>, availability)};
}

}  // namespace phone
