// Icons, clearing and swiping: what the plug-in's own items answer, and that every other item answers what
// the host does.
#include "platform/foundation/ns_number.h"
#include "tests/tavimo/presentation/recording_lock_screen.h"
#include "tests/tavimo/support/pixels.h"

namespace phone {
namespace {

constexpr const char* kNoColor1 = "TVM: did not find custom color string! (1)";
constexpr const char* kNoColor2 = "TVM: did not find custom color string! (2)";

void setIconFile(NSString* file) { exported<NSString*>("iconFile") = file; }

UIImage* iconOf(SBAwayListItem* item) { return item->iconImage(); }

/// The ring is one point wide; its curve leaves a little of the pixel's corners free.
bool isBlack(std::uint32_t pixel) { return (pixel & 0xFFFFFF) == 0 && pixel >> 24 > 0xF0; }

TEST(Icon, DotHasTheColourOfTheTag) {
  RecordingLockScreen phone;
  constexpr std::uint32_t kRed = 0xFFFF0000;
  constexpr std::uint32_t kGreen = 0xFF00FF00;
  constexpr std::uint32_t kWhite = 0xFFFFFFFF;
  const struct {
    const char* message;
    std::uint32_t color;
    Texts log;
  } tags[] = {
      {"TVM|#FF0000", kRed, {}},
      {"TVM|#00FF00|x", kGreen, {}},
      {"0123456|#00FF00", kGreen, {}},
      {nullptr, kWhite, {kNoColor2}},
      {"", kWhite, {kNoColor2}},
      {"TVM|#FF000", kWhite, {kNoColor2}},
      {"no colour at all", kWhite, {kNoColor1}},
      // A colour text of another length is white without a message.
      {"TVM|#FF00001", kWhite, {}},
      {"|||||||||||", kWhite, {}},
      {"TVM||#FF0000", kWhite, {}},
  };
  for (const bool large : {false, true}) {
    setIconFile(large ? "DOT_LARGE"_ns : "DOT"_ns);
    const int radius = large ? 25 : 15;
    for (const auto& tag : tags) {
      SCOPED_TRACE(tag.message == nullptr ? "no message" : tag.message);
      UIImage* const dot = iconOf(phone.add("Tavimo 0", tag.message));
      EXPECT_EQ(RecordingLockScreen::log(), tag.log);
      ASSERT_EQ(dot->size().width, 80);
      ASSERT_EQ(dot->size().height, 80);
      EXPECT_EQ(dot->scale(), 1);
      EXPECT_EQ(pixelAt(dot, 40, 40), tag.color);
      EXPECT_EQ(pixelAt(dot, 40 + radius - 2, 40), tag.color);
      EXPECT_TRUE(isBlack(pixelAt(dot, 40 + radius, 40))) << "the ring";
      EXPECT_TRUE(isBlack(pixelAt(dot, 40 - radius - 1, 40))) << "the ring";
      EXPECT_EQ(pixelAt(dot, 40 + radius + 2, 40), 0U);
      EXPECT_EQ(pixelAt(dot, 0, 0), 0U);
    }
  }
  SBAwayBulletinListItem* const item = phone.add("Tavimo 0");
  EXPECT_NE(iconOf(item), iconOf(item)) << "a new image at every call";
}

TEST(Icon, FileIsTheSameForEveryRowAndNoneIsNone) {
  RecordingLockScreen phone;
  const auto image = objc::make<UIImage>();
  SBAwayBulletinListItem* const first = phone.add("Tavimo 0");
  SBAwayBulletinListItem* const second = phone.add("Tavimo 1", nullptr);
  exported<UIImage*>("icon") = image.get();
  for (NSString* const file : {"/Applications/MobileCal.app/icon-about@2x.png"_ns, "dot"_ns, "NONE "_ns,
                               ""_ns, static_cast<NSString*>(nullptr)}) {
    setIconFile(file);
    EXPECT_EQ(iconOf(first), image.get());
    EXPECT_EQ(iconOf(second), image.get());
  }
  exported<UIImage*>("icon") = nullptr;
  EXPECT_EQ(iconOf(first), nullptr) << "a file that could not be loaded";
  exported<UIImage*>("icon") = image.get();
  setIconFile("NONE"_ns);
  EXPECT_EQ(iconOf(first), nullptr);
  EXPECT_EQ(RecordingLockScreen::log(), Texts{}) << "no dot, no colour, no message";
}

TEST(ItemBehavior, OwnItemsAreThoseWhoseIdentifierBeginsWithTheName) {
  RecordingLockScreen phone;
  setIconFile("NONE"_ns);
  const struct {
    const char* identifier;
    bool own;
  } items[] = {{"Tavimo 0", true},   {"Tavimo 7", true},    {"Tavimo", true},
               {"Tavimoso", true},   {"Tavim", false},      {"tavimo 0", false},
               {" Tavimo 0", false}, {"x Tavimo 0", false}, {"Pellanor 0", false},
               {"", false},          {nullptr, false},      {"com.apple.MobileSMS 1", false}};
  NSInteger row = 0;
  for (const auto& [identifier, own] : items) {
    SCOPED_TRACE(identifier == nullptr ? "none" : identifier);
    SBAwayBulletinListItem* const item = phone.add(identifier);
    for (const bool enabled : {true, false}) {
      exported<bool>("isEnabled") = enabled;
      EXPECT_EQ(iconOf(item), own && enabled ? nullptr : RecordingLockScreen::hostIcon());
      EXPECT_EQ(item->canBeClearedByNotificationCenter(), !(own && enabled));
      EXPECT_EQ(phone.canEdit(row), !(own && enabled));
    }
    ++row;
  }
  EXPECT_EQ(RecordingLockScreen::log(), Texts{});
}

TEST(ItemBehavior, ClassNameDecidesOnlyWhereAnItemIsLookedUpByRow) {
  RecordingLockScreen phone;
  setIconFile("NONE"_ns);
  const auto record = objc::make<BBBulletin>();
  record->setBulletinID("Tavimo 0"_ns);
  SBAwayBulletinListItem* const item = phone.addRecord(record.get(), "SBAwayBulletinListItemOfAnotherName");
  EXPECT_EQ(iconOf(item), nullptr);
  EXPECT_FALSE(item->canBeClearedByNotificationCenter());
  EXPECT_TRUE(phone.canEdit(0));
}

TEST(ItemBehavior, SwipingTellsTheIdentifierInDebugMode) {
  RecordingLockScreen phone;
  phone.add("Tavimo 3");
  phone.add("Pellanor 0");
  phone.addRecord(nullptr, "SBAwayCardListItem");
  exported<bool>("debugMode") = true;
  for (NSInteger row = 0; row < 4; ++row) phone.canEdit(row);
  EXPECT_EQ(RecordingLockScreen::log(),
            (Texts{"Cell active bulletin: Tavimo 3", "Cell active bulletin: Pellanor 0"}));
  exported<bool>("isEnabled") = false;
  phone.canEdit(0);
  EXPECT_EQ(RecordingLockScreen::log(), Texts{});
}

TEST(ItemBehavior, ItemsThatCannotBeAskedForTheirRecordAreTheHosts) {
  RecordingLockScreen phone({.itemsHaveRecords = false});
  setIconFile("NONE"_ns);
  SBAwayBulletinListItem* const item = phone.add("Tavimo 0");
  constexpr const char* kIgnored =
      "TVM: SBAwayBulletinListItem not responding to the required selector, ignoring";
  for (const bool enabled : {true, false}) {
    exported<bool>("isEnabled") = enabled;
    for (const bool debug : {true, false}) {
      exported<bool>("debugMode") = debug;
      EXPECT_EQ(iconOf(item), RecordingLockScreen::hostIcon());
      EXPECT_TRUE(item->canBeClearedByNotificationCenter());
      EXPECT_EQ(RecordingLockScreen::log(), debug ? (Texts{kIgnored, kIgnored}) : Texts{});
    }
  }
  exported<bool>("isEnabled") = true;
  EXPECT_TRUE(phone.canEdit(0));
  EXPECT_EQ(phone.height(0), RecordingLockScreen::kHostHeight);
  objc::send<"layoutSubviews">(phone.cellAt(0));
  EXPECT_EQ(phone.calls(), Texts{"layout"});
}

}  // namespace
}  // namespace phone
