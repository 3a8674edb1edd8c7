// A plug-in's screen comes up over the lock screen: when the own items are to leave the list, and how.
#include "platform/objc/ivar.h"
#include "platform/springboard/sb_lock_screen_plugin_overlay_context.h"
#include "tests/tavimo/publishing/list_fixture.h"

namespace phone {
namespace {

constexpr const char* kContext = "SBLockScreenPluginOverlayContext";
constexpr const char* kDelayedCall = "performSelector:withObject:afterDelay:";
constexpr const char* kInit = "initWithPluginName:pluginController:lockScreenViewController:";
constexpr const char* kRemoval = "observer:removeBulletin:";

objc::Displaced<void(NSObject*, SEL, SEL, NSObject*, double)> delayedCall;

/// A thousand times faster, so that a test can wait for it.
void callSoon(NSObject* self, SEL selector, SEL called, NSObject* argument, double delaySeconds) {
  delayedCall(self, selector, called, argument, delaySeconds / 1000);
}

class NowPlaying : public ListFixture {
 protected:
  NowPlaying()
      : ListFixture([] {
          hookMethod(static_cast<Class>(objc_getClass(kContext)), kDelayedCall, callSoon, delayedCall);
          watch<void(SEL, NSObject*, double)>(kContext, kDelayedCall);
          watch<id(NSString*, NSObject*, NSObject*)>(kContext, kInit);
          watch<void(NSObject*, BBBulletin*)>("SBLockScreenNotificationListController", kRemoval);
        }) {
    // Otherwise the observer's address would be part of what is recorded.
    objc::writeIvar(phone_.controller(), "_observer", static_cast<NSObject*>(text("ITS-OBSERVER")));
    exported<NSInteger>("tvmItemsCount") = 1;
  }

  /// Brings a screen up; gives what was recorded.
  Lines show(NSString* pluginName) {
    sentMessages().clear();
    clearLog();
    NSObject* const allocated = objc::sendToClass<SBLockScreenPluginOverlayContext, "alloc", NSObject*>();
    context_ = objc::Owned<NSObject>::adopt(
        objc::send<"initWithPluginName:pluginController:lockScreenViewController:", NSObject*>(
            allocated, pluginName, static_cast<NSObject*>(text("plugin")),
            static_cast<NSObject*>(text("screen"))));
    EXPECT_EQ(context_.get(), allocated);
    return sentMessages();
  }
  Lines remove() {
    sentMessages().clear();
    clearLog();
    objc::send<"removeCustomBulletins">(context_.get());
    return sentMessages();
  }
  static std::string initialized(const std::string& name) {
    return std::string(kInit) + " " + name + " plugin screen";
  }

  objc::Owned<NSObject> context_;
};

TEST_F(NowPlaying, RemovalIsScheduledBeforeTheHostInitializesTheScreen) {
  const std::string name = "NowPlayingArtLockScreen";
  EXPECT_EQ(show(text(name)),
            (Lines{std::string(kDelayedCall) + " removeCustomBulletins none 5", initialized(name)}));
  EXPECT_EQ(logLines(), (Lines{"TVM: detected Now Playing Screen"}));
  for (const char* other : {"Passcode", "nowplayingartlockscreen", "NowPlayingArtLockScreen2", ""}) {
    EXPECT_EQ(show(text(other)), (Lines{initialized(other)}));
    EXPECT_EQ(logLines(), (Lines{std::string("TVM: SBLockScreenPluginOverlayContext plugin is ") + other}));
  }
  EXPECT_EQ(show(nullptr), (Lines{initialized("none")}));
  EXPECT_EQ(logLines(), (Lines{"TVM: SBLockScreenPluginOverlayContext plugin is (null)"}));
  exported<bool>("debugMode") = false;
  EXPECT_EQ(show(text(name)).size(), 2U);
  EXPECT_EQ(logLines(), Lines());
}

TEST_F(NowPlaying, NothingIsScheduledUnlessAskedForAndEnabled) {
  for (const char* field : {"hideOnNowPlayingScreen", "isEnabled"}) {
    exported<bool>(field) = false;
    EXPECT_EQ(show(text("NowPlayingArtLockScreen")), (Lines{initialized("NowPlayingArtLockScreen")}));
    EXPECT_EQ(logLines(), Lines());
    exported<bool>(field) = true;
  }
}

TEST_F(NowPlaying, OwnItemsLeaveTheListInOrder) {
  list({"Tavimo 1", "Pellanor 1", "org.example.mail", "card", "other class: Tavimo 3", "Tavimo 0", "none"});
  show(text("Passcode"));
  EXPECT_EQ(remove(), (Lines{std::string(kRemoval) + " ITS-OBSERVER <BBBulletin Tavimo 1: Tavimo 1>",
                             std::string(kRemoval) + " ITS-OBSERVER <BBBulletin Tavimo 0: Tavimo 0>"}));
  EXPECT_EQ(logLines()[0], "TVM: SBLockScreenPluginOverlayContext listitems count=7, tvm count=1");
  EXPECT_EQ(logLines()[1], "TVM: SBLockScreenPluginOverlayContext removing 2 bulletins");
}

objc::Displaced<BBBulletin*(SBAwayBulletinListItem*, SEL)> recordDisplaced;
int recordsAsked = 0;
/// The host may take a record away at any time.
BBBulletin* recordAskedOnce(SBAwayBulletinListItem* self, SEL selector) {
  return ++recordsAsked % 2 == 1 ? recordDisplaced(self, selector) : nullptr;
}

TEST_F(NowPlaying, ItemsAreAskedOnceForTheirRecord) {
  list({"Tavimo 0"});
  show(text("Passcode"));
  hookMethod(static_cast<Class>(objc_getClass("SBAwayBulletinListItem")), "activeBulletin", recordAskedOnce,
             recordDisplaced);
  EXPECT_EQ(remove(), (Lines{std::string(kRemoval) + " ITS-OBSERVER <BBBulletin Tavimo 0: Tavimo 0>"}));
  EXPECT_EQ(recordsAsked, 1);
}

TEST_F(NowPlaying, NothingIsRemovedWithoutEventsAtTheLastLoadOrWithoutAList) {
  list({"Tavimo 0"});
  show(text("Passcode"));
  exported<NSInteger>("tvmItemsCount") = 0;
  EXPECT_EQ(remove(), Lines());
  EXPECT_EQ(logLines(), (Lines{"TVM: SBLockScreenPluginOverlayContext listitems count=1, tvm count=0"}));
  exported<NSInteger>("tvmItemsCount") = 1;
  objc::assignStrong<SBLockScreenNotificationListController>(
      exported<SBLockScreenNotificationListController*>("sBLockScreenNotificationListController"), nullptr);
  EXPECT_EQ(remove(), Lines());
  EXPECT_EQ(logLines(), (Lines{"TVM: hideOnNowPlayingScreen is enabled, but "
                               "SBLockScreenNotificationListController is nil!"}));
}

TEST_F(NowPlaying, RunLoopDeliversTheRemovalOnceToTheListOfThatMoment) {
  show(text("NowPlayingArtLockScreen"));
  sentMessages().clear();
  phone_.makeController();
  scriptedStore().events = {titled("one"), titled("two")};
  phone_.load();
  EXPECT_EQ(phone_.titles(), (Lines{"one", "two"}));
  NSObject* const runLoop = objc::sendToClass<"NSRunLoop", "currentRunLoop", NSObject*>();
  const auto run = [&] {
    objc::send<"runUntilDate:">(runLoop,
                                objc::sendToClass<NSDate, "dateWithTimeIntervalSinceNow:", NSDate*>(0.05));
  };
  run();
  EXPECT_EQ(phone_.titles(), Lines());
  phone_.load();
  run();
  EXPECT_EQ(phone_.titles(), (Lines{"one", "two"}));
}

}  // namespace
}  // namespace phone
