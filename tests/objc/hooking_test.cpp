// Hooking: what is replaced, what stays as it was, and what is reported.
#include "phone/objc/hooking.h"

#include <gtest/gtest.h>

#include "phone/objc/class_definition.h"
#include "phone/objc/unknown_selector.h"
#include "platform/foundation/ns_object.h"

namespace phone {
namespace {

using Number = int (*)(id, SEL);

int baseNumber(NSObject*, SEL) { return 1; }
int classNumber(Class, SEL) { return 10; }

class Hooking : public testing::Test {
 protected:
  Hooking() {
    base_ = registerClass({.name = "Base",
                           .superclass = "NSObject",
                           .methods = {method("number", baseNumber), classMethod("number", classNumber)}});
    child_ = registerClass({.name = "Child", .superclass = "Base"});
    sibling_ = registerClass({.name = "Sibling", .superclass = "Base"});
  }

  static int numberOf(Class kind) {
    const auto object = objc::Owned<NSObject>::adopt(objc::send<"new", NSObject*>(kind));
    return objc::send<"number", int>(object.get());
  }

  Class base_;
  Class child_;
  Class sibling_;
};

objc::Displaced<int(id, SEL)> first;
objc::Displaced<int(id, SEL)> second;
int plusOne(id self, SEL selector) { return first(self, selector) + 1; }
int timesTen(id self, SEL selector) { return second(self, selector) * 10; }

TEST_F(Hooking, OwnMethodChangesForSubclassesToo) {
  EXPECT_EQ(numberOf(child_), 1);
  EXPECT_EQ(hookMethod(base_, "number", plusOne, first), HookResult::kOwn);
  EXPECT_EQ(numberOf(base_), 2);
  EXPECT_EQ(numberOf(child_), 2);
}

TEST_F(Hooking, InheritedMethodIsOverriddenInThatClassAlone) {
  EXPECT_EQ(numberOf(child_), 1);
  EXPECT_EQ(hookMethod(child_, "number", plusOne, first), HookResult::kInherited);
  EXPECT_EQ(numberOf(child_), 2);
  EXPECT_EQ(numberOf(base_), 1);
  EXPECT_EQ(numberOf(sibling_), 1);
}

TEST_F(Hooking, SecondReplacementDisplacesTheFirst) {
  EXPECT_EQ(hookMethod(child_, "number", plusOne, first), HookResult::kInherited);
  EXPECT_EQ(hookMethod(child_, "number", timesTen, second), HookResult::kOwn);
  EXPECT_EQ(numberOf(child_), 20);
}

TEST_F(Hooking, ClassMethodIsReachedThroughTheMetaclass) {
  Class const meta = object_getClass(reinterpret_cast<id>(child_));
  EXPECT_EQ(hookMethod(meta, "number", plusOne, first), HookResult::kInherited);
  EXPECT_EQ((objc::send<"number", int>(child_)), 11);
  EXPECT_EQ((objc::send<"number", int>(base_)), 10);
  EXPECT_EQ(numberOf(child_), 1);
}

TEST_F(Hooking, ClassInConstruction) {
  Class const made = objc_allocateClassPair(base_, "Made", 0);
  EXPECT_EQ(hookMethod(made, "number", plusOne, first), HookResult::kInherited);
  EXPECT_EQ(hookMethod(made, "number", timesTen, second), HookResult::kOwn);
  EXPECT_EQ(hookMethod(made, sel_registerName("missing"), reinterpret_cast<IMP>(plusOne), nullptr),
            HookResult::kNoMethod);
  Class const meta = object_getClass(reinterpret_cast<id>(made));
  objc::Displaced<int(id, SEL)> ofClass;
  EXPECT_EQ(hookMethod(meta, "number", plusOne, ofClass), HookResult::kInherited);
  objc_registerClassPair(made);
  EXPECT_EQ(numberOf(made), 20);
  EXPECT_EQ(numberOf(base_), 1);
}

TEST_F(Hooking, FailuresAreToldApartAndLeaveTheSlotAlone) {
  IMP const untouched = reinterpret_cast<IMP>(baseNumber);
  IMP slot = untouched;
  const auto replacement = reinterpret_cast<IMP>(plusOne);
  SEL const number = sel_registerName("number");
  EXPECT_EQ(hookMethod(nullptr, number, replacement, &slot), HookResult::kNoClass);
  EXPECT_EQ(hookMethod(child_, sel_registerName("missing"), replacement, &slot), HookResult::kNoMethod);
  EXPECT_EQ(hookMethod(child_, number, nullptr, &slot), HookResult::kNoReplacement);
  EXPECT_EQ(slot, untouched);
  EXPECT_EQ(numberOf(child_), 1);
}

int callsThroughSlot(id self, SEL selector) { return first(self, selector); }

TEST_F(Hooking, EntryPointReportsInsteadOfEndingTheHost) {
  testing::internal::CaptureStderr();
  MSHookMessageEx(nullptr, sel_registerName("number"), reinterpret_cast<IMP>(plusOne), first.place());
  MSHookMessageEx(base_, sel_registerName("missing:"), reinterpret_cast<IMP>(plusOne), first.place());
  MSHookMessageEx(base_, sel_registerName("number"), reinterpret_cast<IMP>(callsThroughSlot), first.place());
  EXPECT_EQ(testing::internal::GetCapturedStderr(),
            "MSHookMessageEx: [none number] is not replaced: there is no such class\n"
            "MSHookMessageEx: [Base missing:] is not replaced: neither the class nor a superclass has the "
            "method\n");
  EXPECT_EQ(numberOf(base_), 1);
}

}  // namespace
}  // namespace phone
