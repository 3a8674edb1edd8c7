// Booleans between C++ and a phone whose boolean is a signed character: every value but 0 is true, and C++
// sees 0 and 1 only. Where the phone's boolean is C++'s, nothing stands between the two.
#include <bit>
#include <gtest/gtest.h>

#include "phone/objc/class_definition.h"
#include "phone/objc/unknown_selector.h"
#include "platform/foundation/ns_object.h"
#include "platform/objc/displaced.h"

namespace phone {
namespace {

using PhoneBoolean = signed char;
template <typename Signature>
using Across = objc::Crossing<Signature, PhoneBoolean>;

/// What is really in a C++ boolean: a value other than 0 and 1 is undefined.
int bitsOf(bool value) { return std::bit_cast<unsigned char>(value); }

template <PhoneBoolean Answer>
PhoneBoolean answer(NSObject*, SEL) {
  return Answer;
}

PhoneBoolean lastReceived = 0;
void receive(NSObject*, SEL, PhoneBoolean value) { lastReceived = value; }

TEST(Crossing, ResultsAndArgumentsOfThePhonesMethods) {
  registerClass({.name = "Answering",
                 .superclass = "NSObject",
                 .methods = {method("zero", answer<0>), method("one", answer<1>), method("two", answer<2>),
                             method("minusOne", answer<-1>), method("lowest", answer<-128>),
                             method("receive:", receive)}});
  const auto object = objc::make<NSObject, "Answering">();
  for (const auto& [name, expected] :
       {std::pair{"zero", 0}, {"one", 1}, {"two", 1}, {"minusOne", 1}, {"lowest", 1}}) {
    SEL const selector = sel_registerName(name);
    const auto found =
        reinterpret_cast<Across<bool(id, SEL)>::Function>(objc_msg_lookup(object.get(), selector));
    EXPECT_EQ(bitsOf(Across<bool(id, SEL)>::call(found, object.get(), selector)), expected) << name;
  }
  using Receive = Across<void(NSObject*, SEL, bool)>;
  Receive::call(receive, object.get(), nullptr, true);
  EXPECT_EQ(lastReceived, 1);
  Receive::call(receive, object.get(), nullptr, false);
  EXPECT_EQ(lastReceived, 0);
}

int received = -1;
bool negate(NSObject*, SEL, bool value) {
  received = bitsOf(value);
  return !value;
}
double half(NSObject*, SEL, double value) { return value / 2; }

TEST(Crossing, FunctionsOfOursAreEnteredWithThePhonesBoolean) {
  const auto entered = reinterpret_cast<PhoneBoolean (*)(NSObject*, SEL, PhoneBoolean)>(
      objc::implementationOf<negate, PhoneBoolean>());
  for (const auto& [value, expected] : {std::pair{0, 0}, {1, 1}, {2, 1}, {-1, 1}, {-128, 1}}) {
    EXPECT_EQ(entered(nullptr, nullptr, static_cast<PhoneBoolean>(value)), 1 - expected) << value;
    EXPECT_EQ(received, expected) << value;
  }
  EXPECT_EQ((objc::implementationOf<half, PhoneBoolean>()), reinterpret_cast<IMP>(half))
      << "no boolean in it";
  EXPECT_EQ(objc::implementationOf<negate>(), reinterpret_cast<IMP>(negate)) << "this machine's boolean";
}

}  // namespace
}  // namespace phone
