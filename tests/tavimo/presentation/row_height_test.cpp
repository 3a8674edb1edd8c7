// Row heights, the host's height cache, and the underlay that rows of other publishers bring back.
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/foundation/ns_number.h"
#include "platform/objc/ivar.h"
#include "tests/tavimo/presentation/recording_lock_screen.h"

namespace phone {
namespace {

constexpr double kOneLine = 43;
constexpr double kTwoLines = 57;

NSMutableDictionary* heightCache(RecordingLockScreen& phone) {
  return objc::readIvar<NSMutableDictionary>(phone.listView(), "_heightForListItemCache");
}

TEST(RowHeight, FollowsTextSizesAndLocationLine) {
  RecordingLockScreen phone;
  // Lines of title and subtitle are 17 and 14 points high: two more than their fonts.
  exported<NSInteger>("textSize") = 15;
  exported<NSInteger>("subtitleTextSize") = 12;
  const struct {
    bool displayLocation;
    bool sameHeightRows;
    const char* subtitle;
    double height;
  } rows[] = {
      {false, false, nullptr, kOneLine}, {false, false, "Berlin", kOneLine}, {false, true, nullptr, kOneLine},
      {false, true, "Berlin", kOneLine}, {true, false, nullptr, kOneLine},   {true, false, "", kOneLine},
      {true, false, " ", kTwoLines},     {true, false, "Berlin", kTwoLines}, {true, true, nullptr, kTwoLines},
      {true, true, "", kTwoLines},       {true, true, "Berlin", kTwoLines},
  };
  exported<NSInteger>("wallpaperBlurMode") = 1;
  NSInteger row = 0;
  for (const auto& [displayLocation, sameHeightRows, subtitle, height] : rows) {
    exported<bool>("displayLocation") = displayLocation;
    exported<bool>("sameHeightRows") = sameHeightRows;
    SBAwayBulletinListItem* const item = phone.add("Tavimo 0", nullptr, subtitle);
    EXPECT_EQ(phone.height(row), height) << "row " << row;
    EXPECT_EQ(static_cast<NSNumber*>(heightCache(phone)->objectForKey(item))->doubleValue(), height);
    ++row;
  }
  EXPECT_EQ(phone.calls(), Texts{}) << "own rows ask for no underlay";
  EXPECT_EQ(RecordingLockScreen::log(), Texts{});
}

TEST(RowHeight, IsADoubleAndTheCacheHoldsAFloat) {
  RecordingLockScreen phone;
  phone.measure("AAAAAAAAAAA", {88, 17.1});
  SBAwayBulletinListItem* const item = phone.add("Tavimo 0");
  const CGFloat height = 17.1 + 13.0 + 13.0;
  EXPECT_EQ(phone.height(0), height);
  auto* cached = static_cast<NSNumber*>(heightCache(phone)->objectForKey(item));
  EXPECT_EQ(cached->doubleValue(), static_cast<double>(static_cast<float>(height)));
  EXPECT_STREQ((objc::send<"objCType", const char*>(cached)), "f");

  // An entry of the host's, or of an earlier text size, is replaced.
  phone.measure("AAAAAAAAAAA", {88, 30});
  phone.height(0);
  cached = static_cast<NSNumber*>(heightCache(phone)->objectForKey(item));
  EXPECT_EQ(cached->doubleValue(), 56);
  EXPECT_EQ(heightCache(phone)->count(), 1U);
}

TEST(RowHeight, RowsOfOthersKeepTheHostsAndBringTheUnderlayBackUnderMode1) {
  RecordingLockScreen phone;
  phone.add("Pellanor 0");
  phone.add(nullptr);
  phone.addRecord(nullptr, "SBAwayCardListItem");
  const auto record = objc::make<BBBulletin>();
  record->setBulletinID("Tavimo 0"_ns);
  phone.addRecord(record.get(), "SBAwayBulletinListItemOfAnotherName");
  constexpr NSInteger kBeyondTheList = 4;
  for (NSInteger row = 0; row <= kBeyondTheList; ++row) {
    for (const NSInteger mode : {0, 1, 2, 3, -1}) {
      exported<NSInteger>("wallpaperBlurMode") = mode;
      EXPECT_EQ(phone.height(row), RecordingLockScreen::kHostHeight);
      EXPECT_EQ(phone.calls(), mode == 1 ? Texts{"underlay NotificationList"} : Texts{});
    }
  }
  EXPECT_EQ(heightCache(phone)->count(), 0U);

  exported<NSInteger>("wallpaperBlurMode") = 1;
  exported<bool>("isEnabled") = false;
  EXPECT_EQ(phone.height(0), RecordingLockScreen::kHostHeight);
  exported<bool>("isEnabled") = true;
  exported<NSObject*>("sBLockScreenView") = nullptr;
  EXPECT_EQ(phone.height(0), RecordingLockScreen::kHostHeight);
  EXPECT_EQ(phone.calls(), Texts{}) << "neither while disabled nor without a view";
}

TEST(RowHeight, WithoutControllerOrCacheStaysUsable) {
  RecordingLockScreen phone({.listViewHasHeightCache = false});
  phone.add("Tavimo 0");
  EXPECT_EQ(phone.height(0), 28) << "a font of size 0";
  exported<NSObject*>("sBLockScreenNotificationListController") = nullptr;
  EXPECT_EQ(phone.height(0), RecordingLockScreen::kHostHeight);
  EXPECT_TRUE(phone.canEdit(0));
}

TEST(RowHeight, TellsItsStepsInDebugMode) {
  RecordingLockScreen phone;
  exported<bool>("debugMode") = true;
  phone.add("Tavimo 0");
  phone.add("Pellanor 0");
  phone.add(nullptr);
  phone.addRecord(nullptr, "SBAwayCardListItem");
  constexpr const char* kAsked = "TVM: heightForRowAtIndexPath";
  const Texts expected[] = {
      {kAsked},
      {kAsked, "TVM: heightForRowAtIndexPath, this is NOT our item, id is Pellanor 0"},
      {kAsked, "TVM: heightForRowAtIndexPath, this is NOT our item, id is (null)"},
      {kAsked, "TVM: heightForRowAtIndexPath item is NOT of expected class"},
      {kAsked, "TVM: heightForRowAtIndexPath item is NOT of expected class"},
  };
  NSInteger row = 0;
  for (const Texts& lines : expected) {
    phone.height(row++);
    EXPECT_EQ(RecordingLockScreen::log(), lines);
  }
  exported<bool>("isEnabled") = false;
  phone.height(0);
  EXPECT_EQ(RecordingLockScreen::log(), Texts{});
}

}  // namespace
}  // namespace phone
