// Classes from definitions: what lives in their instances is made and released with them, along a chain of
// classes.
#include "phone/objc/class_definition.h"

#include <gtest/gtest.h>
#include <string>

#include "phone/objc/unknown_selector.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/literal.h"
#include "platform/objc/ivar.h"

namespace phone {
namespace {

/// What was constructed and destroyed, in order.
std::string history;

template <char Name>
struct Traced {
  Traced() { history += Name; }
  ~Traced() { history += static_cast<char>(Name - 'A' + 'a'); }
  Traced(const Traced&) = delete;
  Traced& operator=(const Traced&) = delete;
  int value = 7;
};

using Object = objc::Owned<NSObject>;

Object make(const char* className) {
  return Object::adopt(objc::send<"new", NSObject*>(requiredClass(className)));
}

void doNothing(NSObject*, SEL) {}

TEST(ClassDefinition, StateIsConstructedFromTheBaseUpAndDestroyedFromTheTopDownOnceEach) {
  registerClass({.name = "Lower", .superclass = "NSObject", .state = state<Traced<'L'>>()});
  registerClass({.name = "Between", .superclass = "Lower"});
  registerClass({.name = "Upper", .superclass = "Between", .state = state<Traced<'U'>>()});
  Class const subclass = objc_allocateClassPair(requiredClass("Upper"), "MadeByAPlugin", 0);
  objc_registerClassPair(subclass);

  for (const auto& [name, expected] : {std::pair("Lower", "Ll"), std::pair("Between", "Ll"),
                                       std::pair("Upper", "LUul"), std::pair("MadeByAPlugin", "LUul")}) {
    history.clear();
    {
      const Object object = make(name);
      EXPECT_EQ(stateOf<Traced<'L'>>(object.get()).value, 7) << name;
    }
    EXPECT_EQ(history, expected) << name;
  }
}

TEST(ClassDefinition, StrongVariablesAreReleasedWithTheirOwnerAndOthersAreNot) {
  registerClass({.name = "Value", .superclass = "NSObject", .state = state<Traced<'V'>>()});
  registerClass({.name = "Owner",
                 .superclass = "NSObject",
                 .ivars = {{"_held"}, {.name = "_borrowed", .strong = false}}});
  Object held = make("Value");
  Object borrowed = make("Value");
  Object owner = make("Owner");
  objc::writeIvar(owner.get(), "_held", held.get());
  *objc::objectIvar<NSObject>(owner.get(), "_borrowed") = borrowed.get();
  EXPECT_EQ(objc::readIvar<NSObject>(owner.get(), "_held"), held.get());
  EXPECT_EQ(objc::readIvar<NSObject>(owner.get(), "_missing"), nullptr);
  held = Object();
  history.clear();
  owner = Object();
  EXPECT_EQ(history, "v");
  borrowed = Object();
  EXPECT_EQ(history, "vv");
}

struct Title {
  objc::Owned<NSString> title;
  bool shown = false;
};

TEST(ClassDefinition, AccessorsKeepAStrongReference) {
  registerClass(
      {.name = "Titled",
       .superclass = "NSObject",
       .state = state<Title>(),
       .methods = {property<&Title::title, "title">(), property<&Title::shown, "isShown", "setShown:">()}});
  const Object object = make("Titled");
  {
    const AutoreleasePool pool;
    NSString* const title = NSString::stringWithFormat("%s number %d"_ns, "a text longer than a pointer", 5);
    objc::send<"setTitle:">(object.get(), title);
    objc::send<"setTitle:">(object.get(), objc::send<"title", NSString*>(object.get()));
  }
  const AutoreleasePool pool;
  EXPECT_STREQ((objc::send<"title", NSString*>(object.get())->UTF8String()),
               "a text longer than a pointer number 5");
  objc::send<"setShown:">(object.get(), true);
  EXPECT_TRUE((objc::send<"isShown", bool>(object.get())));
}

TEST(ClassDefinition, ReleaseDecidesWhichMethodsAndVariablesThereAre) {
  struct Expected {
    double foundationVersion;
    bool isOld;
  };
  for (const auto& [version, isOld] : {Expected{1047.25, true}, Expected{1141.1, false}}) {
    NSFoundationVersionNumber = version;
    const std::string name = "Released" + std::to_string(static_cast<int>(version));
    registerClass({.name = name.c_str(),
                   .superclass = "NSObject",
                   .ivars = {{.name = "_old", .availability = kUntilIos7},
                             {.name = "_new", .availability = kSinceIos8}},
                   .methods = {method("old", doNothing, kUntilIos7), method("new", doNothing, kSinceIos8)}});
    Class const made = requiredClass(name.c_str());
    EXPECT_EQ(class_getInstanceVariable(made, "_old") != nullptr, isOld);
    EXPECT_EQ(class_getInstanceVariable(made, "_new") != nullptr, !isOld);
    EXPECT_EQ(class_getInstanceMethod(made, sel_registerName("old")) != nullptr, isOld);
    EXPECT_EQ(class_getInstanceMethod(made, sel_registerName("new")) != nullptr, !isOld);
  }
}

TEST(ClassDefinitionDeathTest, MistakesEndTheProcessAndAreNamed) {
  EXPECT_DEATH(registerClass({.name = "Orphan", .superclass = "Nobody"}), "Orphan.*no superclass Nobody");
  EXPECT_DEATH(registerClass({.name = "NSString", .superclass = "NSObject"}),
               "NSString.*of that name already");
  EXPECT_DEATH(registerClass({.name = "Doubled",
                              .superclass = "NSObject",
                              .methods = {method("twice", doNothing), method("twice", doNothing)}}),
               "Doubled.*twice");
  EXPECT_DEATH(requiredClass("Nobody"), "there is no class Nobody");
}

}  // namespace
}  // namespace phone
