// What the plug-in does when the host counts its list, and the two questions about a list's items.
#include "platform/springboard/sb_lock_screen_view.h"
#include "tests/tavimo/publishing/list_fixture.h"

namespace phone {
namespace {

constexpr const char* kRemoval = "_removeLockContentUnderlayWithRequester:";

class Count : public ListFixture {
 protected:
  Count() : ListFixture([] { watch<void(NSString*)>("SBLockScreenView", kRemoval); }) {
    auto* const allocated = objc::sendToClass<SBLockScreenView, "alloc", SBLockScreenView*>();
    view_ = objc::Owned<SBLockScreenView>::adopt(
        objc::send<"initWithFrame:", SBLockScreenView*>(allocated, CGRect{{0, 0}, {320, 568}}));
  }

  NSUInteger count() {
    sentMessages().clear();
    clearLog();
    return objc::send<"count", NSUInteger>(phone_.controller());
  }
  bool ask(const char* question) {
    return pluginSymbol<bool(NSMutableArray*)>(question)(listItems(phone_.controller()));
  }

  objc::Owned<SBLockScreenView> view_;
};

TEST_F(Count, DropsTheUnderlaysWhileOnlyCustomItemsAreListed) {
  const Lines bothRemoved{std::string(kRemoval) + " NotificationList", std::string(kRemoval) + " none"};
  const struct {
    Lines items;
    bool isOnlyCustom;
    bool hasCustom;
  } rows[] = {{{}, false, false},
              {{"Tavimo 0"}, true, true},
              {{"Tavimo 0", "Tavimo 1", "Tavimo 22"}, true, true},
              {{"Pellanor 1", "Pellanor"}, true, true},
              {{"Tavimo", "Pellanor 1"}, true, true},
              {{"Tavimo 0", "org.example.mail 1"}, false, true},
              {{"org.example.mail 1", "Tavimo 0"}, false, true},
              {{"tavimo 0", "pellanor 1", "Tavim", "Pellano", "XTavimo", "none", ""}, false, false},
              {{"Tavimo 0", "card"}, false, true},
              {{"card"}, false, false},
              {{"Tavimo 0", "other class: Tavimo 1"}, false, true},
              {{"other class: Tavimo 1", "other class: Pellanor 1"}, false, false}};
  for (const auto& [items, isOnlyCustom, hasCustom] : rows) {
    SCOPED_TRACE(testing::PrintToString(items));
    list(items);
    for (const bool debug : {true, false}) {
      exported<bool>("debugMode") = debug;
      EXPECT_EQ(ask("onlyCustomItemsAreDisplayed"), isOnlyCustom);
      EXPECT_EQ(ask("customItemsAreDisplayed"), hasCustom);
      for (const NSInteger mode : {0, 1, 2}) {
        exported<NSInteger>("wallpaperBlurMode") = mode;
        EXPECT_EQ(count(), items.size());
        EXPECT_EQ(sentMessages(), isOnlyCustom && mode != 0 ? bothRemoved : Lines()) << mode;
        EXPECT_EQ(logCount() == 0, !debug);
      }
    }
  }
}

TEST_F(Count, TellsInDebugModeWhatItFoundAndDropped) {
  exported<NSInteger>("wallpaperBlurMode") = 1;
  list({"Tavimo 0", "Pellanor 1"});
  const Lines found{
      "SBLockScreenNotificationListController listitems count=2",
      "Found lockscreen item: <SBAwayBulletinListItem: Tavimo 0>, class:SBAwayBulletinListItem",
      "Found lockscreen item: <SBAwayBulletinListItem: Pellanor 1>, class:SBAwayBulletinListItem",
      "only custom items are found",
      "SBLockScreenNotificationListController count removing NotificationList underlay"};
  Lines expected = found;
  expected.push_back("SBLockScreenNotificationListController count removing (null) underlay");
  count();
  EXPECT_EQ(logLines(), prefixed(expected));

  // The name of the last plug-in screen that asked for an underlay, granted or not.
  for (const char* requester : {"OverlayContext 1", "OverlayContext 2", "Passcode"}) {
    view_->addLockContentUnderlay(text(requester));
  }
  expected.back() = "SBLockScreenNotificationListController count removing OverlayContext 2 underlay";
  count();
  EXPECT_EQ(logLines(), prefixed(expected));
  EXPECT_EQ(sentMessages(), (Lines{std::string(kRemoval) + " NotificationList",
                                   std::string(kRemoval) + " OverlayContext 2"}));

  list({"other class: Tavimo 3", "Tavimo 4"});
  count();
  EXPECT_EQ(logLines(), prefixed({"SBLockScreenNotificationListController listitems count=2",
                                  "Found lockscreen item: <SBOtherBulletinListItem: Tavimo 3>, "
                                  "class:SBOtherBulletinListItem",
                                  "Found lockscreen item: <SBAwayBulletinListItem: Tavimo 4>, "
                                  "class:SBAwayBulletinListItem",
                                  "NOT only custom items are found, custom:1, all:2"}));
  list({});
  count();
  EXPECT_EQ(logLines(), prefixed({"SBLockScreenNotificationListController listitems count=0",
                                  "NOT only custom items are found, custom:0, all:0"}));
}

TEST_F(Count, DisabledOnlyCounts) {
  exported<NSInteger>("wallpaperBlurMode") = 2;
  exported<bool>("isEnabled") = false;
  list({"Tavimo 0"});
  EXPECT_EQ(count(), 1U);
  EXPECT_EQ(sentMessages(), Lines());
  EXPECT_EQ(logLines(), Lines());
}

}  // namespace
}  // namespace phone
