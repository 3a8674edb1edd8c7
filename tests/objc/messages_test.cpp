// Messages: to none, to objects that do not know them, and with arguments that do not fit.
#include <gtest/gtest.h>

#include "phone/objc/class_definition.h"
#include "phone/objc/unknown_selector.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_range.h"

namespace phone {
namespace {

TEST(Messages, ToNoneGiveZeroForEveryKindOfResult) {
  id const none = nullptr;
  // What an earlier call left in the registers must not come back.
  EXPECT_NE(NSDate::dateWithTimeIntervalSinceReferenceDate(12.5)->timeIntervalSinceReferenceDate(), 0.0);
  EXPECT_EQ((objc::send<"doubleValue", double>(none)), 0.0);
  EXPECT_EQ((objc::send<"floatValue", float>(none)), 0.0F);
  EXPECT_EQ((objc::send<"integerValue", NSInteger>(none)), 0);
  EXPECT_EQ((objc::send<"description", NSString*>(none)), nullptr);
  const auto range = objc::send<"rangeOfString:", NSRange>(none, "x"_ns);
  EXPECT_EQ(range.location, 0U);
  EXPECT_EQ(range.length, 0U);
  EXPECT_EQ((objc::send<"description", NSString*>(none)->UTF8String()), nullptr);
}

TEST(MessagesDeathTest, UnknownSelectorEndsTheProcessNamingReceiverClassAndSelector) {
  const AutoreleasePool pool;
  registerClass({.name = "Silent", .superclass = "NSObject"});
  endOnUnknownSelectors();
  const auto silent = objc::Owned<NSObject>::adopt(objc::send<"new", NSObject*>(requiredClass("Silent")));
  EXPECT_DEATH(objc::send<"speak:">(silent.get(), 5), R"(message -\[Silent speak:\].*no method answers)");
  EXPECT_DEATH(objc::send<"speak">(requiredClass("Silent")),
               R"(message \+\[Silent speak\].*no method answers)");
  // With a selector that carries a signature Foundation takes another road to the same end.
  SEL const typed = sel_registerTypedName("speakLoud", "v@:");
  const auto sendUnchecked = [&] {
    reinterpret_cast<void (*)(id, SEL)>(objc_msg_lookup(silent.get(), typed))(silent.get(), typed);
  };
  EXPECT_DEATH(sendUnchecked(), R"(message -\[Silent speakLoud\]: no method answers \(receiver 0x)");
}

#if defined(TAVIMO_CHECKED_SENDS)

TEST(Messages, EncodingsAgreeWhenTheValuesPassAlike) {
  struct Case {
    const char* sent;
    const char* answered;
    bool agree;
  };
  for (const auto& [sent, answered, agree] : {
           Case{"v@:", "v16@0:8", true},
           Case{"B@:", "C16@0:8", true},
           Case{"@@:^@^@Q", "@40@0:8^r@16^r@24Q32", true},
           Case{"v@:{CGRect={CGPoint=dd}{CGSize=dd}}", "v48@0:8{_NSRect={_NSPoint=dd}{_NSSize=dd}}16", true},
           Case{"v@:^v", "v24@0:8^{__sFILE=i^v}16", true},
           Case{"v@:^{a=^{b=i}}i", "v@:^ii", true},
           Case{"@@:#", "@24@0:8@16", true},
           Case{"v@:@", "v24@0:8@?16", true},
           Case{"v@:d", "v@:f", false},
           Case{"v@:i", "v@:q", false},
           Case{"v@:@", "v@:@@", false},
           Case{"v@:{CGRect={CGPoint=dd}{CGSize=dd}}", "v@:{CGSize=dd}", false},
           Case{"v@:^i", "v@:i", false},
           Case{"v@:@", "v@:", false},
       }) {
    EXPECT_EQ(objc::encodingsAgree(sent, answered), agree) << sent << " against " << answered;
  }
}

double half(NSObject*, SEL, double value) { return value / 2; }

TEST(MessagesDeathTest, WrongArgumentTypeEndsTheProcessNamingBothSignatures) {
  registerClass({.name = "Halver", .superclass = "NSObject", .methods = {method("half:", half)}});
  const auto halver = objc::Owned<NSObject>::adopt(objc::send<"new", NSObject*>(requiredClass("Halver")));
  EXPECT_EQ((objc::send<"half:", double>(halver.get(), 5.0)), 2.5);
  EXPECT_DEATH((objc::send<"half:", double>(halver.get(), 5)),
               R"(message -\[Halver half:\]: sent as "d@:i", but the method is .*d)");
}

#endif

}  // namespace
}  // namespace phone
