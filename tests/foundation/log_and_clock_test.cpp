// The log sink and the clock of a host process.
#include <gtest/gtest.h>

#include "phone/foundation/clock.h"
#include "phone/foundation/foundation.h"
#include "phone/foundation/log_sink.h"
#include "phone/objc/class_definition.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/literal.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_log.h"

namespace phone {
namespace {

using Lines = std::vector<std::string>;

TEST(LogSink, KeepsMessagesWithoutDateAndProcess) {
  const AutoreleasePool pool;
  startFoundation({.root = "/phone"});
  NSLog("%@ plain"_ns, "TVM:"_ns);
  NSLog("[12] (x) [a:b] ] [3:4] "_ns);
  NSLog("two\nlines\n"_ns);
  NSLog(""_ns);
  NSLog("ü 😀 %d%%"_ns, 5);
  EXPECT_EQ(logLines(), (Lines{"TVM: plain", "[12] (x) [a:b] ] [3:4] ", "two\nlines", "", "ü 😀 5%"}));
  clearLog();
  // A process may be called anything.
  objc::send<"setProcessName:">(objc::sendToClass<"NSProcessInfo", "processInfo", id>(), "a] [b] c"_ns);
  NSLog("after"_ns);
  EXPECT_EQ(logLines(), Lines{"after"});
}

TEST(LogSink, CountsWithoutKeepingAndEchoesWhenAsked) {
  const AutoreleasePool pool;
  startFoundation({.root = "/phone"});
  std::FILE* const echo = std::tmpfile();
  setLogKeeping(false);
  NSLog("only counted"_ns);
  setLogEcho(echo);
  NSLog("shown"_ns);
  setLogEcho(nullptr);
  setLogKeeping(true);
  NSLog("kept"_ns);
  EXPECT_EQ(logCount(), 3U);
  EXPECT_EQ(logLines(), Lines{"kept"});
  std::rewind(echo);
  char shown[64] = {};
  const std::size_t length = std::fread(shown, 1, sizeof shown - 1, echo);
  EXPECT_EQ(std::string(shown, length), "shown\n");
  std::fclose(echo);
}

TEST(Clock, StandsStillWhenFixedAndRunsWhenNot) {
  const AutoreleasePool pool;
  startFoundation({.root = "/phone", .now = 415879072.5});
  EXPECT_EQ(NSDate::date()->timeIntervalSinceReferenceDate(), 415879072.5);
  EXPECT_EQ((objc::sendToClass<"NSCalendarDate", "date", NSDate*>()->timeIntervalSinceReferenceDate()),
            415879072.5);
  setClock(std::nullopt);
  const double now = NSDate::date()->timeIntervalSinceReferenceDate();
  EXPECT_NEAR(now, static_cast<double>(std::time(nullptr)) - 978307200, 2);
}

int calls = 0;
void countCall(NSObject*, SEL) { ++calls; }

TEST(Clock, DelayedCallsRunOnRealTimeUnderAFixedClock) {
  const AutoreleasePool pool;
  startFoundation({.root = "/phone", .now = 415879072.5});
  Class const target =
      registerClass({.name = "Target", .superclass = "NSObject", .methods = {method("call", countCall)}});
  const auto object = objc::Owned<NSObject>::adopt(objc::send<"new", NSObject*>(target));
  object->performSelector(sel_registerName("call"), nullptr, 0.05);
  id const loop = objc::sendToClass<"NSRunLoop", "currentRunLoop", id>();
  const auto runFor = [&](double seconds) {
    objc::send<"runUntilDate:">(loop,
                                objc::sendToClass<NSDate, "dateWithTimeIntervalSinceNow:", NSDate*>(seconds));
  };
  runFor(0.01);
  EXPECT_EQ(calls, 0);
  runFor(0.3);
  EXPECT_EQ(calls, 1);
}

}  // namespace
}  // namespace phone
