// What the plug-in installs in which process, in which order, and what it leaves alone.
#include <algorithm>
#include <cstdlib>
#include <gtest/gtest.h>

#include "phone/foundation/foundation.h"
#include "phone/objc/plugin.h"
#include "platform/calendarui/ek_event_detail_item.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/objc/owned.h"
#include "tests/tavimo/loader/installation_record.h"
#include "tests/tavimo/support/bare_hosts.h"
#include "tests/tavimo/support/message_recorder.h"
#include "tests/tavimo/support/plugin_values.h"

namespace phone {
namespace {

using Lines = std::vector<std::string>;

const Lines kHomeScreen{
    "replace SBLockScreenPluginOverlayContext initWithPluginName:pluginController:lockScreenViewController:",
    "add SBLockScreenPluginOverlayContext removeCustomBulletins v@:",
    "replace SBLockScreenNotificationListController count",
    "replace SBLockScreenNotificationListController turnOnScreenIfNecessaryForItem:",
    "replace SBLockScreenNotificationListController loadView",
    "replace SBAwayBulletinListItem iconImage",
    "replace SBAwayBulletinListItem canBeClearedByNotificationCenter",
    "replace SBLockScreenNotificationListView tableView:heightForRowAtIndexPath:",
    "replace SBLockScreenNotificationListView tableView:canEditRowAtIndexPath:",
    "replace SBLockScreenBulletinCell initWithStyle:reuseIdentifier:",
    "replace SBLockScreenBulletinCell setContentAlpha:",
    "replace SBLockScreenBulletinCell layoutSubviews",
    "replace SBLockScreenView initWithFrame:",
    "replace SBLockScreenView _addLockContentUnderlayWithRequester:"};

const Lines kEditorAndEventView{
    "replace EKEventEditor _editItems",
    "replace EKEventEditor completeWithAction:animated:", "replace EKEventViewController viewWillAppear:",
    "replace EKEventViewController viewWillDisappear:", "replace EKEventViewController _items"};

const std::string kBoolean = objc::Encoding<bool>::value.c_str();

const Lines kDetailItem{"replace EKEventDetailItemOrv setEvent:store:",
                        "replace EKEventDetailItemOrv cellForSubitemAtIndex:inSubsection:",
                        "replace EKEventDetailItemOrv cellForSubitemAtIndex:",
                        "add EKEventDetailItemOrv switchChanged: v@:@",
                        "add EKEventDetailItemOrv showDisabledHelp v@:",
                        "add EKEventDetailItemOrv cell @@:",
                        "add EKEventDetailItemOrv setCell: v@:@",
                        "add EKEventDetailItemOrv eventURI @@:",
                        "add EKEventDetailItemOrv setEventURI: v@:@",
                        "add EKEventDetailItemOrv allDayEnabled " + kBoolean + "@:",
                        "add EKEventDetailItemOrv setAllDayEnabled: v@:" + kBoolean,
                        "add EKEventDetailItemOrv noAlarmSet " + kBoolean + "@:",
                        "add EKEventDetailItemOrv setNoAlarmSet: v@:" + kBoolean,
                        "add EKEventDetailItemOrv cellIsVisible " + kBoolean + "@:",
                        "add EKEventDetailItemOrv setCellIsVisible: v@:" + kBoolean,
                        "add EKEventDetailItemOrv showOnLockscreen " + kBoolean + "@:",
                        "add EKEventDetailItemOrv setShowOnLockscreen: v@:" + kBoolean,
                        "add EKEventDetailItemOrv dndSwitch @@:",
                        "add EKEventDetailItemOrv setDndSwitch: v@:@",
                        "add EKEventDetailItemOrv disabledHelpButton @@:",
                        "add EKEventDetailItemOrv setDisabledHelpButton: v@:@",
                        "add EKEventDetailItemOrv tapGestureRecognizer @@:",
                        "add EKEventDetailItemOrv setTapGestureRecognizer: v@:@",
                        "register EKEventDetailItemOrv"};

class Installation : public testing::Test {
 protected:
  Installation() { startFoundation({}); }

  /// The steps after those that make the editor's row, a class of the plug-in's own.
  static Lines stepsAfterTheEditorsRow() {
    Lines steps = installationSteps();
    const auto made = std::ranges::find(steps, "register EKEventOrvItem");
    if (made != steps.end()) steps.erase(steps.begin(), made + 1);
    return steps;
  }
  static bool exists(const char* className) { return objc_lookUpClass(className) != nullptr; }

  AutoreleasePool pool_;
};

TEST_F(Installation, HomeScreenGetsItsEntriesInOrderEvenWithTheCalendarScreensPresent) {
  registerBareHomeScreen();
  registerBareCalendarScreens();
  EXPECT_EQ(installationSteps(), kHomeScreen);
  EXPECT_FALSE(exists("EKEventDetailItemOrv"));
  EXPECT_FALSE(exists("EKEventOrvItem"));
}

TEST_F(Installation, OtherProcessGetsTheEditorsEntriesAndTheDetailItemLast) {
  registerBareCalendarScreens();
  Lines expected = kEditorAndEventView;
  expected.insert(expected.end(), kDetailItem.begin(), kDetailItem.end());
  EXPECT_EQ(stepsAfterTheEditorsRow(), expected);
  EXPECT_TRUE(exists("EKEventOrvItem"));

  const auto ofSuperclass = objc::make<EKEventDetailItem>();
  ofSuperclass->setEvent(nullptr, nullptr);
  ofSuperclass->cellForSubitem(0);
  EXPECT_EQ(sentMessages(), (Lines{"setEvent:store: none none", "cellForSubitemAtIndex: 0"}));
  unsigned int methods = 0;
  std::free(class_copyMethodList(objc_getClass("EKEventDetailItemOrv"), &methods));
  EXPECT_EQ(methods, 23U);
  EXPECT_FALSE(exported<bool>("isEnabled"));
}

TEST_F(Installation, ProcessWithoutAnyOfTheClassesIsUnharmed) {
  EXPECT_EQ(
      stepsAfterTheEditorsRow(),
      (Lines{"replace none _editItems", "replace none completeWithAction:animated:",
             "replace none viewWillAppear:", "replace none viewWillDisappear:", "replace none _items"}));
  EXPECT_FALSE(exists("EKEventDetailItemOrv"));
  EXPECT_FALSE(exists("EKEventOrvItem"));
}

TEST_F(Installation, ClassThatTheHomeScreenLacksLeavesTheOthersInstalled) {
  registerBareHomeScreen("SBLockScreenPluginOverlayContext");
  Lines expected = kHomeScreen;
  expected[0] = "replace none initWithPluginName:pluginController:lockScreenViewController:";
  expected[1] = "add none removeCustomBulletins v@:";
  EXPECT_EQ(installationSteps(), expected);
}

TEST_F(Installation, ClassThatTheCalendarScreensLackLeavesTheOthersInstalled) {
  registerBareCalendarScreens("EKEventEditItem");
  Lines expected = kEditorAndEventView;
  expected.insert(expected.end(), kDetailItem.begin(), kDetailItem.end());
  EXPECT_EQ(installationSteps(), expected);
  EXPECT_FALSE(exists("EKEventOrvItem"));
}

}  // namespace
}  // namespace phone
