// The bare home screen, without a plug-in: what a phone's own notifications and passes do on its lock screen.
#include "phone/springboard/home_screen.h"

#include <gtest/gtest.h>
#include <stdexcept>

namespace phone {
namespace {

HostOptions phoneOf(const std::string& release) {
  return {.root = std::filesystem::temp_directory_path(),
          .release = release,
          .now = 415'843'200.0,
          .timeZone = "Europe/Berlin"};
}

class EveryRelease : public testing::TestWithParam<const char*> {};

INSTANTIATE_TEST_SUITE_P(HomeScreen, EveryRelease, testing::Values("7.1", "8.1", "8.4", "9.3"),
                         [](const auto& release) {
                           std::string name = std::string("ios") + release.param;
                           name.erase(name.find('.'), 1);
                           return name;
                         });

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
  EXPECT_EQ(rows[0].publicationDate, 415'843'200.0);
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
