// The lock screen list on its own: the order of its items, records that replace and leave, unlocking, and who
// turns the screen on. No plug-in is loaded.
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "phone/bulletinboard/bulletinboard.h"
#include "phone/objc/class_definition.h"
#include "phone/springboard/sb_away_card_list_item.h"
#include "phone/springboard/sb_lock_screen_notification_list_controller.h"
#include "phone/springboard/springboard.h"
#include "phone/uikit/uikit.h"
#include "platform/bulletinboard/bb_bulletin.h"
#include "platform/foundation/autorelease_pool.h"
#include "platform/foundation/foundation_version.h"
#include "platform/foundation/ns_date.h"
#include "platform/foundation/ns_string.h"

namespace phone {
namespace {

using Controller = SBLockScreenNotificationListController;
using Titles = std::vector<std::string>;

constexpr double kIos71 = 1047.25;
constexpr double kIos81 = 1141.1;
constexpr double kIos84 = 1144.17;
constexpr double kIos93 = 1280.25;

NSString* text(const std::string& utf8) { return NSString::stringWithUTF8String(utf8.c_str()); }

NSDate* at(double seconds) { return NSDate::dateWithTimeIntervalSinceReferenceDate(seconds); }

objc::Owned<BBBulletin> record(const std::string& identifier, const std::string& title,
                               NSDate* published = nullptr) {
  auto bulletin = objc::make<BBBulletin>();
  if (!identifier.empty()) bulletin->setBulletinID(text(identifier));
  bulletin->setTitle(text(title));
  bulletin->setPublicationDate(published);
  return bulletin;
}

/// A list controller as one release of the phone has it.
class List {
 public:
  explicit List(double foundationVersion) {
    NSFoundationVersionNumber = foundationVersion;
    registerUIKit();
    registerBulletinBoard();
    registerSpringBoard();
    controller_ = objc::make<Controller, "SBLockScreenNotificationListController">();
  }

  void add(const objc::Owned<BBBulletin>& bulletin) {
    if (NSFoundationVersionNumber < kFirstIos8Foundation) {
      controller_->addBulletin(observerOf(controller_.get()), bulletin.get(), 0);
    } else {
      controller_->addBulletin(observerOf(controller_.get()), bulletin.get(), 0, false, nullptr);
    }
  }
  void remove(const objc::Owned<BBBulletin>& bulletin) {
    controller_->removeBulletin(observerOf(controller_.get()), bulletin.get());
  }
  void load() { objc::send<"loadView">(controller_.get()); }

  Titles titles() {
    Titles all;
    NSMutableArray* const items = listItems(controller_.get());
    for (NSUInteger i = 0; i < items->count(); ++i) {
      all.emplace_back(static_cast<SBAwayListItem*>(items->objectAtIndex(i))->title()->UTF8String());
    }
    return all;
  }

  Controller* operator->() { return controller_.get(); }
  Controller* get() { return controller_.get(); }

 private:
  AutoreleasePool pool_;
  objc::Owned<Controller> controller_;
};

TEST(LockScreenList, standsByDateNewestFirstAndUndatedRecordsKeepTheirOrderBelow) {
  List list(kIos84);
  list.add(record("1", "undated first"));
  list.add(record("2", "now", at(1000)));
  list.add(record("3", "years ago", at(-9e8)));
  list.add(record("4", "undated second"));
  list.add(record("5", "years ahead", at(9e8)));
  list.add(record("6", "now, but later", at(1000)));
  auto interrupted = record("7", "interrupted");
  interrupted->setLastInterruptDate(at(1001));
  list.add(interrupted);
  insertItem(list.get(), makeCardItem(text("boarding pass"), text("Gate 4"), at(1000)).get());

  EXPECT_EQ(list.titles(), (Titles{"years ahead", "interrupted", "now", "now, but later", "boarding pass",
                                   "years ago", "undated first", "undated second"}));
}

TEST(LockScreenList, replacesTheRecordOfAnIdentifierAndRemovesByIdentifierOrIdentity) {
  List list(kIos84);
  auto nameless = record("", "nameless", at(3));
  list.add(record("a", "a", at(2)));
  list.add(record("b", "b", at(1)));
  list.add(nameless);
  list.add(record("b", "b again", at(4)));
  EXPECT_EQ(list.titles(), (Titles{"b again", "nameless", "a"}));

  list.remove(record("a", "another object"));
  list.remove(record("", "a stranger"));
  list.remove(record("c", "never listed"));
  list.remove({});
  EXPECT_EQ(list.titles(), (Titles{"b again", "nameless"}));
  list.remove(nameless);
  EXPECT_EQ(list.titles(), (Titles{"b again"}));
}

TEST(LockScreenList, takesRecordsInTheWayOfItsReleaseAndOutlivesAnUnlockFromIos9On) {
  const struct {
    double version;
    bool hasShortSelector;
    bool listOutlivesUnlock;
  } releases[] = {
      {kIos71, true, false}, {kIos81, false, false}, {kIos84, false, false}, {kIos93, false, true}};
  for (const auto& release : releases) {
    SCOPED_TRACE(release.version);
    // Classes are registered once per process, for one release.
    EXPECT_EXIT(
        {
          List list(release.version);
          const bool shortSelector =
              list->respondsToSelector(objc::selector<"observer:addBulletin:forFeed:">());
          const bool longSelector = list->respondsToSelector(
              objc::selector<"observer:addBulletin:forFeed:playLightsAndSirens:withReply:">());
          list.add(record("a", "a"));
          list.load();
          const bool listed = list.titles() == Titles{"a"};
          unloadView(list.get());
          const bool outlives = list.titles() == Titles{"a"};
          const bool asExpected = shortSelector == release.hasShortSelector &&
                                  longSelector != release.hasShortSelector && listed &&
                                  outlives == release.listOutlivesUnlock;
          std::exit(asExpected ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
  }
}

TEST(LockScreenList, turnsTheScreenOnForANewRecordButNotForOneThatIsReplaced) {
  List list(kIos93);
  list.load();
  EXPECT_FALSE(springBoardState().screenIsOn);
  list.add(record("a", "a"));
  EXPECT_TRUE(springBoardState().screenIsOn);
  springBoardState().screenIsOn = false;
  list.add(record("a", "a, updated"));
  EXPECT_FALSE(springBoardState().screenIsOn);
}

}  // namespace
}  // namespace phone
