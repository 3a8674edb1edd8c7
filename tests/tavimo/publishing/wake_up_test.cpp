// Who may turn the screen on: everybody but the plug-in's own records.
#include "phone/springboard/sb_lock_screen_notification_bulletin_banner_item.h"
#include "platform/springboard/sb_lock_screen_notification_bulletin_banner_item.h"
#include "tests/tavimo/publishing/list_fixture.h"

namespace phone {
namespace {

constexpr const char* kWakeUp = "turnOnScreenIfNecessaryForItem:";
constexpr const char* kAsked = "TVM: SBLockScreenNotificationListController turnOnScreenIfNecessaryForItem.";
constexpr const char* kNoRecord =
    "TVM: SBLockScreenNotificationListController turnOnScreenIfNecessaryForItem arg does not have "
    "bbulettin. ";

class WakeUp : public ListFixture {
 protected:
  WakeUp() : ListFixture([] { watch<void(NSObject*)>("SBLockScreenNotificationListController", kWakeUp); }) {}

  /// Whether the host was asked, with the same argument.
  bool reachesHost(NSObject* argument) {
    sentMessages().clear();
    clearLog();
    objc::send<"turnOnScreenIfNecessaryForItem:">(phone_.controller(), argument);
    return sentMessages() == Lines{std::string(kWakeUp) + " " + detail::describe(argument)};
  }
};

TEST_F(WakeUp, OwnRecordsNeverTurnTheScreenOn) {
  const struct {
    const char* identifier;
    bool wakes;
  } rows[] = {{"Tavimo 0", false},
              {"Tavimo", false},
              {"Pellanor 1", true},
              {"org.example.mail", true},
              {"tavimo 0", true},
              {"none", true},
              {"", true}};
  for (const auto& [identifier, wakes] : rows) {
    SCOPED_TRACE(identifier);
    EXPECT_EQ(reachesHost(record(identifier).get()), wakes);
    EXPECT_EQ(logLines(), (Lines{kAsked}));
    EXPECT_EQ(reachesHost(bannerFor(item(identifier).get())), wakes);
    EXPECT_EQ(logLines(), (Lines{kAsked}));
  }
}

TEST_F(WakeUp, BannersWithoutARecordReachTheHost) {
  EXPECT_TRUE(reachesHost(bannerFor(item("card").get())));
  EXPECT_TRUE(reachesHost(bannerFor(nullptr)));
  EXPECT_EQ(logLines(), (Lines{kAsked}));
  // The class of the item behind a banner does not matter.
  EXPECT_FALSE(reachesHost(bannerFor(item("other class: Tavimo 0").get())));
}

TEST_F(WakeUp, OtherClassesReachTheHost) {
  const auto ownItem = item("Tavimo 0");
  const auto otherRecord = record("Tavimo 0", "OtherBulletin");
  for (NSObject* const argument :
       {static_cast<NSObject*>(ownItem.get()), static_cast<NSObject*>(otherRecord.get()),
        static_cast<NSObject*>(text("Tavimo 0")), static_cast<NSObject*>(nullptr)}) {
    EXPECT_TRUE(reachesHost(argument));
    EXPECT_EQ(logLines(), (Lines{kAsked, kNoRecord}));
  }
}

TEST_F(WakeUp, DisabledAsksTheHostAndDebugModeOffIsSilent) {
  exported<bool>("debugMode") = false;
  EXPECT_FALSE(reachesHost(record("Tavimo 0").get()));
  EXPECT_TRUE(reachesHost(text("anything")));
  EXPECT_EQ(logLines(), Lines());
  exported<bool>("debugMode") = true;
  exported<bool>("isEnabled") = false;
  EXPECT_TRUE(reachesHost(record("Tavimo 0").get()));
  EXPECT_EQ(logLines(), Lines());
}

}  // namespace
}  // namespace phone
