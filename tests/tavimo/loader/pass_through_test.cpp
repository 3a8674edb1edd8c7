// The home screen before the first load of its list: the plug-in is disabled, and every replacement gives
// what the host gives. Also what it does in a host that has nothing but the replaced methods.
#include <gtest/gtest.h>

#include "phone/bulletinboard/bulletinboard.h"
#include "phone/foundation/foundation.h"
#include "phone/foundation/log_sink.h"
#include "phone/objc/plugin.h"
#include "phone/uikit/uikit.h"
#include "platform/uikit/ns_index_path.h"
#include "platform/uikit/ui_image.h"
#include "platform/uikit/ui_table_view.h"
#include "tests/support/built.h"
#include "tests/tavimo/support/bare_hosts.h"
#include "tests/tavimo/support/script.h"

namespace phone {
namespace {

class BareHomeScreen : public testing::Test {
 protected:
  explicit BareHomeScreen(bool hasRecords = true) {
    startFoundation({.root = root_.path(), .now = kMorning, .timeZone = "UTC"});
    registerUIKit();
    if (hasRecords) registerBulletinBoard();
    registerScriptedEventKit();
    registerBareHomeScreen();
    loadPlugin(pluginLibrary());
  }

  TemporaryFolder root_;
  AutoreleasePool pool_;
};

TEST_F(BareHomeScreen, EveryReplacementPassesThroughBeforeTheFirstLoad) {
  NSString* const name = text("NowPlayingArtLockScreen");
  NSObject* const controller = text("controller");
  UITableView* const noTable = nullptr;
  NSIndexPath* const noPath = nullptr;
  const CGRect frame{{1, 2}, {3, 4}};

  const auto context = objc::make<NSObject, "SBLockScreenPluginOverlayContext">();
  EXPECT_EQ((objc::send<"initWithPluginName:pluginController:lockScreenViewController:", id>(
                context.get(), name, controller, controller)),
            context.get());
  const auto list = objc::make<NSObject, "SBLockScreenNotificationListController">();
  EXPECT_EQ((objc::send<"count", NSUInteger>(list.get())), 42U);
  objc::send<"turnOnScreenIfNecessaryForItem:">(list.get(), controller);
  const auto item = objc::make<NSObject, "SBAwayBulletinListItem">();
  EXPECT_EQ((objc::send<"iconImage", UIImage*>(item.get())), static_cast<void*>(item.get()));
  EXPECT_TRUE((objc::send<"canBeClearedByNotificationCenter", bool>(item.get())));
  const auto listView = objc::make<NSObject, "SBLockScreenNotificationListView">();
  EXPECT_EQ((objc::send<"tableView:heightForRowAtIndexPath:", CGFloat>(listView.get(), noTable, noPath)), 42);
  EXPECT_TRUE((objc::send<"tableView:canEditRowAtIndexPath:", bool>(listView.get(), noTable, noPath)));
  const auto cell = objc::make<NSObject, "SBLockScreenBulletinCell">();
  EXPECT_EQ((objc::send<"initWithStyle:reuseIdentifier:", id>(cell.get(), NSInteger{3}, name)), cell.get());
  objc::send<"setContentAlpha:">(cell.get(), CGFloat{0.5});
  objc::send<"layoutSubviews">(cell.get());
  const auto view = objc::make<NSObject, "SBLockScreenView">();
  EXPECT_EQ((objc::send<"initWithFrame:", id>(view.get(), frame)), view.get());
  objc::send<"_addLockContentUnderlayWithRequester:">(view.get(), name);

  EXPECT_EQ(sentMessages(),
            (Lines{"initWithPluginName:pluginController:lockScreenViewController: NowPlayingArtLockScreen "
                   "controller controller",
                   "count", "turnOnScreenIfNecessaryForItem: controller", "iconImage",
                   "canBeClearedByNotificationCenter", "tableView:heightForRowAtIndexPath: none none",
                   "tableView:canEditRowAtIndexPath: none none",
                   "initWithStyle:reuseIdentifier: 3 NowPlayingArtLockScreen", "setContentAlpha: 0.5",
                   "layoutSubviews", "initWithFrame: {{1, 2}, {3, 4}}",
                   "_addLockContentUnderlayWithRequester: NowPlayingArtLockScreen"}));
  EXPECT_EQ(logLines(), Lines());
  EXPECT_FALSE(exported<bool>("isEnabled"));
}

TEST_F(BareHomeScreen, ListControllerWithoutInstanceVariablesAndWaysToAddIsUnharmed) {
  // No preferences at all: the plug-in runs enabled, with its defaults, and would search no calendar.
  scriptedStore().events = {titled("one")};
  const auto list = objc::make<NSObject, "SBLockScreenNotificationListController">();
  objc::send<"loadView">(list.get());
  EXPECT_EQ(loggedWith("not responding"), (Lines{"TVM: list controller not responding to known selectors!"}));
  EXPECT_EQ((objc::send<"count", NSUInteger>(list.get())), 42U);
  const auto context = objc::make<NSObject, "SBLockScreenPluginOverlayContext">();
  exported<bool>("debugMode") = true;
  clearLog();
  objc::send<"removeCustomBulletins">(context.get());
  EXPECT_EQ(logLines(), (Lines{"TVM: SBLockScreenPluginOverlayContext listitems count=0, tvm count=1",
                               "TVM: SBLockScreenPluginOverlayContext removing 0 bulletins"}));
  EXPECT_EQ(sentMessages(), (Lines{"loadView", "count"}));
}

class HomeScreenWithoutRecords : public BareHomeScreen {
 protected:
  HomeScreenWithoutRecords() : BareHomeScreen(false) {}
};

TEST_F(HomeScreenWithoutRecords, CountsEventsAndPublishesNone) {
  scriptedStore().events = {titled("one"), titled("two")};
  objc::send<"loadView">(objc::make<NSObject, "SBLockScreenNotificationListController">().get());
  EXPECT_EQ(exported<NSInteger>("tvmItemsCount"), 2);
  EXPECT_EQ(sentMessages(), (Lines{"loadView"}));
  EXPECT_EQ(loggedWith("not responding"), Lines()) << "nothing was handed over";
}

}  // namespace
}  // namespace phone
