// A load of the list, on each release of the phone: what is withdrawn, published and logged in which order,
// and when the host's own loadView has its turn.
#include "phone/foundation/log_sink.h"
#include "phone/objc/class_definition.h"
#include "platform/foundation/ns_dictionary.h"
#include "platform/objc/ivar.h"
#include "tests/tavimo/support/releases.h"
#include "tests/tavimo/support/script.h"

namespace phone {
namespace {

using Controller = SBLockScreenNotificationListController;

constexpr const char* kOldAdd = "observer:addBulletin:forFeed:";
constexpr const char* kNewAdd = "observer:addBulletin:forFeed:playLightsAndSirens:withReply:";
constexpr const char* kController = "SBLockScreenNotificationListController";

class Load : public EachRelease {
 protected:
  Load() : phone_({.release = release(), .beforePlugin = watchController}) {}

  static void watchController() {
    watch<void(NSObject*, BBBulletin*)>(kController, "observer:removeBulletin:");
    watch<void()>(kController, "loadView");
    if (addsInTheOldWay()) {
      watch<void(NSObject*, BBBulletin*, NSUInteger)>(kController, kOldAdd);
    } else {
      watch<void(NSObject*, BBBulletin*, NSUInteger, bool, id)>(kController, kNewAdd);
    }
  }

  /// What the host is told, with the observer's address taken out.
  Lines load() {
    const std::string observer =
        utf8(objc::readIvar<NSObject>(phone_.controller(), "_observer")->description());
    Lines lines = messagesOfLoad(phone_);
    for (std::string& line : lines) {
      if (const auto at = line.find(observer); at != line.npos)
        line.replace(at, observer.size(), "ITS-OBSERVER");
    }
    return lines;
  }
  static std::string added(const std::string& record) {
    return addsInTheOldWay() ? std::string(kOldAdd) + " ITS-OBSERVER " + record + " 0"
                             : std::string(kNewAdd) + " ITS-OBSERVER " + record + " 0 false none";
  }
  static std::string removed(const std::string& record) {
    return "observer:removeBulletin: ITS-OBSERVER " + record;
  }

  LockScreen phone_;
};

TEST_P(Load, PublishesWhatIsNotHiddenAndLetsTheHostLoadLast) {
  scriptedStore().events = {titled("one"), titled("two"), titled("three")};
  phone_.write(kHiddenEvents, "<dict><key>x-apple-calevent://RED/two</key><integer>7</integer></dict>");
  phone_.write(kOrdering, "<array><string>Orvessa</string><string>System Items</string></array>");
  phone_.settings("");
  clearLog();
  EXPECT_EQ(load(),
            (Lines{added("<BBBulletin Tavimo 0: one>"), added("<BBBulletin Tavimo 2: three>"), "loadView"}));
  EXPECT_EQ(exported<NSInteger>("tvmItemsCount"), 3);
  EXPECT_EQ(exported<Controller*>("sBLockScreenNotificationListController"), phone_.controller());
  EXPECT_EQ(phone_.titles(), (Lines{"one", "three"}));
  NSDictionary* const store = NSDictionary::dictionaryWithContentsOfFile(
      text("/var/mobile/Library/Preferences/" + std::string(kHiddenEvents)));
  const std::string hiddenEvents = utf8(store->description());
  EXPECT_NE(hiddenEvents.find("x-apple-calevent://RED/two"), std::string::npos);
  EXPECT_EQ(logLines(), (Lines{"TVM: hidden events:\r\n " + hiddenEvents,
                               "TVM: adding calendar event 'one', start at 2014-03-07 10:00:00 +0000",
                               "TVM: adding calendar event 'two', start at 2014-03-07 10:00:00 +0000",
                               "TVM: hiding calendar event 'two'",
                               "TVM: adding calendar event 'three', start at 2014-03-07 10:00:00 +0000"}));
}

TEST_P(Load, ReadsTheOrderingThenTheSettingsThenWithdrawsAndPublishes) {
  scriptedStore().events = {titled("one")};
  load();
  clearLog();
  Lines expected{"log TVM: system sort priority not found",
                 "log TVM: unable to load preferences.",
                 "log TVM: hidden events",
                 "log TVM: adding calendar event 'one'",
                 addsInTheOldWay() ? kOldAdd : kNewAdd,
                 "loadView"};
  if (listOutlivesLoads()) expected.insert(expected.begin() + 2, "observer:removeBulletin:");
  EXPECT_TRUE(beginAs(traceOf([this] { phone_.load(); }), expected));
}

TEST_P(Load, WithdrawsTheRecordsOfTheLoadBeforeFromIos9On) {
  scriptedStore().events = {titled("one"), titled("two")};
  load();
  scriptedStore().events = {titled("three")};
  Lines expected{added("<BBBulletin Tavimo 0: three>"), "loadView"};
  if (listOutlivesLoads()) {
    expected.insert(expected.begin(),
                    {removed("<BBBulletin Tavimo 0: one>"), removed("<BBBulletin Tavimo 1: two>")});
  }
  EXPECT_EQ(load(), expected);
  // What was withdrawn or let go of once is never withdrawn again.
  phone_.settings("<key>enabled</key><false/>");
  expected = {"loadView"};
  if (listOutlivesLoads()) expected.insert(expected.begin(), removed("<BBBulletin Tavimo 0: three>"));
  EXPECT_EQ(load(), expected);
  EXPECT_EQ(load(), (Lines{"loadView"}));
}

TEST_P(Load, SwitchedOffPublishesNothingAndAsksNobody) {
  scriptedStore().events = {titled("one")};
  load();
  phone_.settings("<key>enabled</key><false/><key>debugMode</key><true/>");
  phone_.write(kOrdering, "<array><string>System Items</string></array>");
  phone_.makeController();
  scriptedStore().events = {titled("one"), titled("two")};
  scriptedStore().queries.clear();
  clearLog();
  load();
  EXPECT_EQ(phone_.titles(), Lines());
  EXPECT_TRUE(scriptedStore().queries.empty());
  EXPECT_EQ(logLines(), Lines());
  EXPECT_EQ(exported<NSInteger>("tvmItemsCount"), 1);
  EXPECT_EQ(exported<Controller*>("sBLockScreenNotificationListController"), phone_.controller());
}

TEST_P(Load, WithdrawsThroughTheControllerThatLoadsNow) {
  scriptedStore().events = {titled("one")};
  load();
  auto* const first = phone_.controller();
  phone_.makeController();
  // Only the plug-in holds the first controller now; the second load lets go of it.
  EXPECT_EQ(exported<Controller*>("sBLockScreenNotificationListController"), first);
  const Lines sent = load();
  EXPECT_EQ(sent.size(), listOutlivesLoads() ? 3U : 2U);
  EXPECT_EQ(sent.back(), "loadView");
  EXPECT_EQ(phone_.titles(), (Lines{"one"}));
}

TEST_P(Load, NoEventsStillLoadsTheHost) {
  EXPECT_EQ(load(), (Lines{"loadView"}));
  EXPECT_EQ(loggedWith("hidden events"), (Lines{"TVM: hidden events:\r\n {}"}));
  EXPECT_EQ(exported<NSInteger>("tvmItemsCount"), 0);
}

TAVIMO_ON_EACH_RELEASE(Load);

bool respondsToNoAdd(NSObject*, SEL, SEL asked) {
  return sel_isEqual(asked, sel_registerName("observer:removeBulletin:"));
}
bool respondsToBothAdds(NSObject*, SEL, SEL) { return true; }
void takeInTheOldWay(NSObject*, SEL, NSObject*, BBBulletin*, NSUInteger) {
  sentMessages().push_back(kOldAdd);
}

TEST(OtherControllers, OldWayOfAddingIsPreferredAndNoWayIsReportedPerRecord) {
  LockScreen phone({.release = "9.3"});
  registerClass(
      {.name = "BothWays",
       .superclass = kController,
       .methods = {method("respondsToSelector:", respondsToBothAdds), method(kOldAdd, takeInTheOldWay)}});
  registerClass({.name = "NoWay",
                 .superclass = kController,
                 .methods = {method("respondsToSelector:", respondsToNoAdd)}});
  scriptedStore().events = {titled("one"), titled("two")};
  const auto bothWays = objc::make<Controller, "BothWays">();
  objc::send<"loadView">(bothWays.get());
  EXPECT_EQ(sentMessages(), (Lines{kOldAdd, kOldAdd}));

  clearLog();
  const auto noWay = objc::make<Controller, "NoWay">();
  objc::send<"loadView">(noWay.get());
  EXPECT_EQ(loggedWith("not responding"),
            Lines(2, "TVM: list controller not responding to known selectors!"));
  // The records count as published all the same: the next load withdraws them.
  watch<void(NSObject*, BBBulletin*)>(kController, "observer:removeBulletin:");
  EXPECT_EQ(messagesOfLoad(phone).size(), 2U);
}

}  // namespace
}  // namespace phone
