// The bare home screen, without a plug-in: what a phone's own notifications and passes do on its lock screen.
#include "phone/springboard/home_screen.h"

#include <gtest/gtest.h>
#include <stdexcept>

#include "phone/springboard/sb_lock_screen_notification_list_controller.h"
#include "platform/foundation/ns_string.h"
#include "platform/springboard/sb_lock_screen_view.h"
#include "tests/springboard/phones.h"

namespace phone {
namespace {

using Names = std::vector<std::string>;

INSTANTIATE_TEST_SUITE_P(HomeScreen, EveryRelease, testing::Values("7.1", "8.1", "8.4", "9.3"), releaseName);

Names titlesOf(HomeScreen& homeScreen) {
  Names titles;
  for (const ListRow& row : homeScreen.rows()) titles.push_back(row.title);
  return titles;
}

void postNumbered(HomeScreen& homeScreen, int count) {
  for (int i = 0; i < count; ++i) homeScreen.postNotification({.title = std::to_string(i), .text = "text"});
}

TEST_P(EveryRelease, listsItsOwnNotificationsOnceHoweverOftenItLoads) {
  auto homeScreen = HomeScreen::boot(phoneOf(GetParam()));
  homeScreen.postNotification({.title = "Mia", .text = "See you at eight"});
  for (int i = 0; i < 3; ++i) homeScreen.load();
  homeScreen.postNotification({.title = "Bank", .text = "1,20 received", .section = "com.example.bank"});
  homeScreen.offerPass("Flight OV 12", "Gate 4");

  const auto rows = homeScreen.rows();
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].title, "Mia");
  EXPECT_EQ(rows[0].message, "See you at eight");
  EXPECT_EQ(rows[0].itemClass, "SBAwayBulletinListItem");
  EXPECT_EQ(rows[0].publicationDate, kFridayNoon);
  EXPECT_EQ(rows[1].section, "com.example.bank");
  EXPECT_EQ(rows[2].itemClass, "SBAwayCardListItem");
  EXPECT_EQ(rows[2].identifier, "");
}

TEST_P(EveryRelease, staysDarkAtLoadAndLightsUpForANotification) {
  auto homeScreen = HomeScreen::boot(phoneOf(GetParam()));
  homeScreen.postNotification({.title = "Mia", .text = "See you at eight"});
  homeScreen.load();
  EXPECT_FALSE(homeScreen.screenIsOn());
  homeScreen.postNotification({.title = "Bank", .text = "1,20 received"});
  EXPECT_TRUE(homeScreen.screenIsOn());

  homeScreen.turnScreenOff();
  EXPECT_FALSE(homeScreen.askToWakeFor("Nobody"));
  EXPECT_FALSE(homeScreen.screenIsOn());
  EXPECT_TRUE(homeScreen.askToWakeFor("Mia"));
  EXPECT_TRUE(homeScreen.screenIsOn());
}

TEST_P(EveryRelease, clearsWhatLetsItselfBeClearedForGood) {
  auto homeScreen = HomeScreen::boot(phoneOf(GetParam()));
  homeScreen.offerPass("Flight", "Gate 4");
  postNumbered(homeScreen, 4);
  EXPECT_FALSE(homeScreen.swipeAway(1)) << "there is no list to swipe while the phone is unlocked";
  homeScreen.load();
  const bool passIsStillThere = std::string(GetParam()) == "9.3";
  EXPECT_EQ(titlesOf(homeScreen).size(), passIsStillThere ? 5U : 4U);
  homeScreen.offerPass("Flight", "Gate 4");

  const std::size_t first = passIsStillThere ? 1 : 0;
  EXPECT_TRUE(homeScreen.swipeAway(first));
  EXPECT_FALSE(homeScreen.swipeAway(99));
  EXPECT_FALSE(homeScreen.swipeAway(homeScreen.rows().size() - 1)) << "a pass stays";
  homeScreen.load();
  const Names left = titlesOf(homeScreen);
  EXPECT_EQ(std::count(left.begin(), left.end(), "0"), 0) << "what was cleared does not come back";
  EXPECT_EQ(homeScreen.clearAll(), 3U);
  EXPECT_EQ(homeScreen.clearAll(), 0U);
}

TEST_P(EveryRelease, hasAnUnderlayWhileItsListHasItems) {
  auto homeScreen = HomeScreen::boot(phoneOf(GetParam()));
  homeScreen.load();
  EXPECT_EQ(homeScreen.underlays(), Names{});
  homeScreen.postNotification({.title = "Mia", .text = "See you at eight"});
  EXPECT_EQ(homeScreen.underlays(), Names{"NotificationList"});
  homeScreen.showNowPlaying();
  homeScreen.load();
  EXPECT_EQ(homeScreen.underlays(), (Names{"OverlayContext-NowPlayingArtLockScreen", "NotificationList"}));
  homeScreen.clearAll();
  EXPECT_EQ(homeScreen.underlays(), Names{"OverlayContext-NowPlayingArtLockScreen"});
  homeScreen.hideNowPlaying();
  EXPECT_EQ(homeScreen.underlays(), Names{});
}

TEST(HomeScreen, keepsOneUnderlayPerRequester) {
  auto homeScreen = HomeScreen::boot(phoneOf());
  SBLockScreenView* const view = homeScreen.lockScreenView();
  view->addLockContentUnderlay(NSString::stringWithUTF8String("b"));
  view->addLockContentUnderlay(NSString::stringWithUTF8String("a"));
  view->addLockContentUnderlay(NSString::stringWithUTF8String("b"));
  view->addLockContentUnderlay(nullptr);
  EXPECT_EQ(homeScreen.underlays(), (Names{"b", "a"}));
  view->removeLockContentUnderlay(nullptr);
  view->removeLockContentUnderlay(NSString::stringWithUTF8String("c"));
  view->removeLockContentUnderlay(NSString::stringWithUTF8String("b"));
  EXPECT_EQ(homeScreen.underlays(), Names{"a"});
}

TEST(HomeScreen, scrollsAsFarAsItsListGoes) {
  auto homeScreen = HomeScreen::boot(phoneOf());
  homeScreen.load();
  homeScreen.scrollTo(3);
  postNumbered(homeScreen, 16);
  constexpr double kListTop = 146;
  constexpr double kListBottom = 568 - 78;
  const auto atRest = homeScreen.rows();
  EXPECT_EQ(atRest[0].frame->origin.y, kListTop);
  EXPECT_EQ(atRest[0].cell->contentAlpha, 1);
  EXPECT_LT(atRest[1].cell->contentAlpha, 1);
  EXPECT_LT(atRest[2].cell->contentAlpha, atRest[1].cell->contentAlpha);
  EXPECT_FALSE(atRest[15].cell.has_value()) << "a row out of sight has no cell";

  homeScreen.scrollTo(5);
  auto scrolled = homeScreen.rows();
  EXPECT_EQ(scrolled[5].frame->origin.y, kListTop);
  EXPECT_EQ(scrolled[5].cell->contentAlpha, 1);
  EXPECT_FALSE(scrolled[0].cell.has_value());

  homeScreen.scrollTo(99);
  scrolled = homeScreen.rows();
  EXPECT_EQ(scrolled[15].frame->origin.y + scrolled[15].frame->size.height, kListBottom);
  EXPECT_TRUE(scrolled[15].cell.has_value());
}

TEST(HomeScreen, makesRoomForTheControlsOfWhatIsPlaying) {
  auto homeScreen = HomeScreen::boot(phoneOf());
  homeScreen.load();
  postNumbered(homeScreen, 16);
  const auto visibleRows = [&homeScreen] {
    const auto rows = homeScreen.rows();
    return std::count_if(rows.begin(), rows.end(), [](const ListRow& row) { return row.cell.has_value(); });
  };
  const double top = homeScreen.rows()[0].frame->origin.y;
  const auto visible = visibleRows();
  homeScreen.showNowPlaying();
  EXPECT_GT(homeScreen.rows()[0].frame->origin.y, top);
  EXPECT_LT(visibleRows(), visible);
  homeScreen.load();
  EXPECT_GT(homeScreen.rows()[0].frame->origin.y, top) << "a list that loads meanwhile stands there, too";
  homeScreen.hideNowPlaying();
  EXPECT_EQ(homeScreen.rows()[0].frame->origin.y, top);
  EXPECT_EQ(visibleRows(), visible);
}

TEST(HomeScreen, laysItsRowsOutInsideTheScreenWhateverTheySay) {
  auto homeScreen = HomeScreen::boot(phoneOf());
  homeScreen.load();
  const std::string longText(10'000, 'W');
  for (const std::string& title :
       {std::string("Mia"), longText, std::string(), std::string("مرحبا بالعالم"),
        std::string("会議室の予約"), std::string("👩‍👩‍👧 e\u0301\u0301\u0301")}) {
    homeScreen.postNotification({.title = title, .text = title});
  }
  for (std::size_t i = 0; i < 6; ++i) {
    SCOPED_TRACE(i);
    homeScreen.scrollTo(i);
    const ListRow row = homeScreen.rows()[i];
    ASSERT_TRUE(row.cell.has_value());
    const auto& [dateText, icon, title, date, subtitle, message, alpha, drawsSeparator] = *row.cell;
    EXPECT_EQ(dateText, "now");
    EXPECT_LE(icon.origin.x + icon.size.width, title.origin.x);
    EXPECT_LE(title.origin.x + title.size.width + 10, date.origin.x);
    EXPECT_LE(date.origin.x + date.size.width, 310);
    EXPECT_LE(message.origin.x + message.size.width, 310);
    EXPECT_LE(message.origin.y + message.size.height, row.frame->size.height);
    EXPECT_EQ(title.origin.y + title.size.height, message.origin.y);
  }
  EXPECT_NE(homeScreen.picture(), nullptr);
}

TEST(HomeScreen, opensWhatATappedRowSays) {
  auto homeScreen = HomeScreen::boot(phoneOf());
  homeScreen.postNotification({.title = "Mia", .text = "See you at eight"});
  EXPECT_FALSE(homeScreen.tap(0).has_value());
  homeScreen.load();
  EXPECT_FALSE(homeScreen.tap(1).has_value());
  const auto launch = homeScreen.tap(0);
  ASSERT_TRUE(launch.has_value());
  EXPECT_EQ(launch->url + launch->bundleID, "") << "a message only unlocks the phone";
}

TEST(HomeScreen, saysWhatItCannotStartWith) {
  EXPECT_THROW(HomeScreen::boot(phoneOf("6.0")), std::invalid_argument);
  EXPECT_EXIT(
      {
        try {
          HomeScreen::boot(phoneOf("8.4"), "/no/such/plugin.so");
        } catch (const std::runtime_error& error) {
          std::exit(std::string(error.what()).find("/no/such/plugin.so") == std::string::npos ? 1 : 0);
        }
        std::exit(2);
      },
      testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace phone
