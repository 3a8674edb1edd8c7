// The order in which each lock screen replacement asks, requests, logs and lets the host have its turn. An
// item is asked for its record once: a second answer may be another.
#include "phone/uikit/ui_view.h"
#include "tests/tavimo/presentation/recording_lock_screen.h"
#include "tests/tavimo/support/message_recorder.h"

namespace phone {
namespace {

constexpr const char* kItem = "SBAwayBulletinListItem";
constexpr const char* kController = "SBLockScreenNotificationListController";
constexpr const char* kListView = "SBLockScreenNotificationListView";
constexpr const char* kCell = "SBLockScreenBulletinCell";
constexpr const char* kView = "SBLockScreenView";

constexpr const char* kCanAnswer = "respondsToSelector: activeBulletin";
constexpr const char* kRecord = "activeBulletin";
constexpr const char* kLookUp = "listItemAtIndexPath:";
constexpr const char* kHostHeight = "tableView:heightForRowAtIndexPath:";

objc::Displaced<id(SBLockScreenView*, SEL, CGRect)> hostInit;
id noteWhoIsRecorded(SBLockScreenView* self, SEL selector, CGRect frame) {
  const bool isRecorded = exported<SBLockScreenView*>("sBLockScreenView") == self;
  sentMessages().emplace_back(isRecorded ? "initWithFrame: recorded" : "initWithFrame: not recorded");
  return hostInit(self, selector, frame);
}

void watchHost() {
  watch<bool(SEL)>(kItem, "respondsToSelector:");
  watch<BBBulletin*()>(kItem, kRecord);
  watch<UIImage*()>(kItem, "iconImage");
  watch<bool()>(kItem, "canBeClearedByNotificationCenter");
  watch<NSObject*(NSIndexPath*)>(kController, kLookUp);
  watch<NSUInteger()>(kController, "count");
  watch<void(NSObject*)>(kController, "turnOnScreenIfNecessaryForItem:");
  watch<CGFloat(UITableView*, NSIndexPath*)>(kListView, kHostHeight);
  watch<bool(UITableView*, NSIndexPath*)>(kListView, "tableView:canEditRowAtIndexPath:");
  watch<id(NSInteger, NSString*)>(kCell, "initWithStyle:reuseIdentifier:");
  watch<void(CGFloat)>(kCell, "setContentAlpha:");
  watch<void()>(kCell, "layoutSubviews");
  watch<void(bool)>(kCell, "_setSeparatorHidden:");
  watch<void(bool)>(kCell, "_setDrawsSeparatorAtTopOfSection:");
  watch<void(NSString*)>(kView, "_addLockContentUnderlayWithRequester:");
  watch<void(NSString*)>(kView, "_removeLockContentUnderlayWithRequester:");
  hookMethod(static_cast<Class>(objc_getClass(kView)), "initWithFrame:", noteWhoIsRecorded, hostInit);
}

/// Enabled, in debug mode and under blur mode 1; row 0 is the plug-in's own, row 1 another publisher's.
class Order : public testing::Test {
 protected:
  Order() {
    own_ = phone_.add("Tavimo 0");
    other_ = phone_.add("org.example.mail 1");
    exported<NSString*>("iconFile") = "DOT"_ns;
    exported<bool>("debugMode") = true;
    exported<NSInteger>("wallpaperBlurMode") = 1;
  }

  static void expectOrder(const Texts& trace, const Texts& expected) {
    EXPECT_TRUE(beginAs(trace, expected));
  }

  RecordingLockScreen phone_{LockScreenShape{.beforePlugin = watchHost}};
  SBAwayBulletinListItem* own_ = nullptr;
  SBAwayBulletinListItem* other_ = nullptr;
};

TEST_F(Order, ItemsOfTheClassAreAskedOnceAndTheHostOnlyForOthers) {
  const std::pair<const char*, std::function<void(SBAwayBulletinListItem*)>> questions[] = {
      {"iconImage", [](SBAwayBulletinListItem* item) { item->iconImage(); }},
      {"canBeClearedByNotificationCenter",
       [](SBAwayBulletinListItem* item) { item->canBeClearedByNotificationCenter(); }}};
  for (const auto& question : questions) {
    const char* const host = question.first;
    const auto& ask = question.second;
    exported<bool>("isEnabled") = true;
    expectOrder(traceOf([&] { ask(own_); }), {kCanAnswer, kRecord});
    expectOrder(traceOf([&] { ask(other_); }), {kCanAnswer, kRecord, host});
    // Disabled, the debug message alone asks what the item can do; the icon and the clearing are the host's.
    exported<bool>("isEnabled") = false;
    expectOrder(traceOf([&] { ask(own_); }), {kCanAnswer, host});
    exported<bool>("debugMode") = false;
    expectOrder(traceOf([&] { ask(own_); }), {host});
    exported<bool>("debugMode") = true;
  }
}

TEST_F(Order, Swiping) {
  const Texts asked{kLookUp, kCanAnswer, kRecord, "log Cell active bulletin: "};
  expectOrder(traceOf([&] { phone_.canEdit(0); }), asked);
  Texts withHost = asked;
  withHost.emplace_back("tableView:canEditRowAtIndexPath:");
  expectOrder(traceOf([&] { phone_.canEdit(1); }), withHost);
}

TEST_F(Order, HeightBringsTheUnderlayBackBeforeTheHostMeasures) {
  const Texts asked{"log TVM: heightForRowAtIndexPath", kLookUp, kCanAnswer, kRecord};
  expectOrder(traceOf([&] { phone_.height(0); }), asked);
  Texts others = asked;
  others.insert(others.end(),
                {"log TVM: heightForRowAtIndexPath, this is NOT our item",
                 "log TVM: adding wallpaper underlay for context NotificationList, by my request",
                 "_addLockContentUnderlayWithRequester: NotificationList", kHostHeight});
  expectOrder(traceOf([&] { phone_.height(1); }), others);
}

TEST_F(Order, CellIsFoundBeforeTheHostFadesIt) {
  SBLockScreenBulletinCell* const first = phone_.cellAt(0);
  phone_.add("Tavimo 2");
  SBLockScreenBulletinCell* const own = phone_.cellAt(2);
  SBLockScreenBulletinCell* const other = phone_.cellAt(1);
  const auto fade = [](SBLockScreenBulletinCell* cell) {
    return traceOf([cell] { objc::send<"setContentAlpha:">(cell, CGFloat{0.5}); });
  };
  expectOrder(fade(first), {"setContentAlpha: 1"});
  expectOrder(fade(own),
              {kLookUp, kCanAnswer, kRecord, "log TVM: cell setContentAlpha, setting to custom. Orig = 0.5",
               "setContentAlpha: 1"});
  expectOrder(fade(other), {kLookUp, kCanAnswer, kRecord, "setContentAlpha: 0.5"});
}

TEST_F(Order, HostLaysACellOutFirst) {
  const auto layOut = [this](NSInteger row) {
    SBLockScreenBulletinCell* const cell = phone_.cellAt(row);
    return traceOf([cell] { objc::send<"layoutSubviews">(cell); });
  };
  const Texts asked{"layoutSubviews", kLookUp, "log cell layoutSubviews. item class=SBAwayBulletinListItem",
                    kCanAnswer, kRecord};
  expectOrder(layOut(1), asked);
  Texts own = asked;
  own.insert(own.end(), {"log TVM: cell layoutSubviews, detected TVM cell",
                         "log TVM: needed date size:", "log TVM: date is not right aligned",
                         "log TVM: date frame is", "log TVM: subtitle frame is", "log TVM: iOS 8+ separators",
                         "_setSeparatorHidden: true", "_setDrawsSeparatorAtTopOfSection: false"});
  expectOrder(layOut(0), own);
}

TEST_F(Order, HostCountsFirst) {
  const auto count = [this] {
    return traceOf([this] { objc::send<"count", NSUInteger>(phone_.controller()); });
  };
  Texts expected{"count", "log TVM: SBLockScreenNotificationListController listitems count=2"};
  for (int item = 0; item < 2; ++item) {
    // Foundation asks too, when it prints the item.
    expected.insert(expected.end(), {"respondsToSelector: descriptionWithLocale:",
                                     "log TVM: Found lockscreen item:", kCanAnswer, kRecord});
  }
  expected.emplace_back("log TVM: NOT only custom items are found, custom:1, all:2");
  expectOrder(count(), expected);
}

TEST_F(Order, ScreenIsTurnedOnLast) {
  const auto turnOn = [this](NSObject* item) {
    return traceOf([&] { objc::send<"turnOnScreenIfNecessaryForItem:">(phone_.controller(), item); });
  };
  constexpr const char* kAsked =
      "log TVM: SBLockScreenNotificationListController turnOnScreenIfNecessaryForItem";
  expectOrder(turnOn(own_->activeBulletin()), {kAsked});
  expectOrder(turnOn(other_->activeBulletin()), {kAsked, "turnOnScreenIfNecessaryForItem:"});
}

TEST_F(Order, LockScreenViewIsRecordedBeforeTheHostMakesItAndIsKept) {
  const auto references = [](SBLockScreenView* view) { return objc::send<"retainCount", NSUInteger>(view); };
  objc::Owned<SBLockScreenView> first;
  objc::Owned<SBLockScreenView> second;
  for (objc::Owned<SBLockScreenView>* const made : {&first, &second}) {
    expectOrder(traceOf([&] { *made = makeView<SBLockScreenView>(); }), {"initWithFrame: recorded"});
    EXPECT_EQ(references(made->get()), 2U) << "this test's and the plug-in's";
  }
  EXPECT_EQ(references(first.get()), 1U) << "the later view took its place";
}

}  // namespace
}  // namespace phone
