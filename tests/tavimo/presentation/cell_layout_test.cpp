// Fonts, colours, frames, separators and messages of a cell's layout.
#include "platform/objc/ivar.h"
#include "platform/uikit/ui_color.h"
#include "platform/uikit/ui_font.h"
#include "tests/tavimo/presentation/recording_lock_screen.h"

namespace phone {
namespace {

struct Frame {
  double x, y, width, height;
  bool operator==(const Frame&) const = default;
};

Frame frameOf(UIView* view) {
  const CGRect frame = view->frame();
  return {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height};
}

void PrintTo(const Frame& frame, std::ostream* out) {
  *out << frame.x << ", " << frame.y << ", " << frame.width << ", " << frame.height;
}

std::string hexOf(UIColor* color) {
  const auto name =
      objc::Owned<NSString>::adopt(pluginSymbol<NSString*(UIColor*)>("hexStringForColor")(color));
  return name->UTF8String();
}

void setColor(const char* name, UIColor* color) { exported<UIColor*>(name) = color; }

/// A phone with one own item and its cell, whose labels measure as the test says.
struct OwnCell {
  explicit OwnCell(double foundationVersion = 1144.17, const char* message = "TVM|#00FF00")
      : phone({.foundationVersion = foundationVersion}) {
    phone.add("Tavimo 0", message);
    cell = phone.cellAt(0);
    cell->primaryLabel()->setText("title"_ns);
    cell->relevanceDateLabel()->setText("date"_ns);
    cell->subtitleLabel()->setText("subtitle"_ns);
    cell->secondaryLabel()->setText(textOrNone(message));
    phone.measure("title", {100, 20});
    phone.measure("date", {40, 15});
    phone.measure("subtitle", {100, 15});
  }

  void layOut() { objc::send<"layoutSubviews">(cell); }

  RecordingLockScreen phone;
  SBLockScreenBulletinCell* cell;
};

TEST(CellLayout, PutsDateBesideTitleAndSubtitleBelow) {
  OwnCell own;
  auto& [phone, cell] = own;
  struct Case {
    const char* what;
    CGSize title, date, subtitle;
    Frame titleFrame, dateFrame, rightDateFrame, subtitleFrame;
  };
  const Case cases[] = {
      {"plain",
       {100, 20},
       {40, 15},
       {100, 15},
       {47, 13, 100, 20},
       {157, 18, 40, 15},
       {270, 18, 40, 15},
       {47, 33, 100, 15}},
      {"long title",
       {300, 20},
       {40, 15},
       {100, 15},
       {47, 13, 213, 20},
       {270, 18, 40, 15},
       {270, 18, 40, 15},
       {47, 33, 100, 15}},
      {"title that just fits",
       {213, 20},
       {40, 15},
       {100, 15},
       {47, 13, 213, 20},
       {270, 18, 40, 15},
       {270, 18, 40, 15},
       {47, 33, 100, 15}},
      {"taller date",
       {100, 20},
       {40, 24},
       {100, 15},
       {47, 17, 100, 20},
       {157, 13, 40, 24},
       {270, 13, 40, 24},
       {47, 37, 100, 15}},
      {"subtitle as wide as the cell",
       {100, 20},
       {40, 15},
       {400, 15},
       {47, 13, 100, 20},
       {157, 18, 40, 15},
       {270, 18, 40, 15},
       {47, 33, 263, 15}},
      {"nothing to say",
       {0, 0},
       {0, 0},
       {0, 0},
       {47, 13, 0, 0},
       {57, 13, 0, 0},
       {310, 13, 0, 0},
       {47, 13, 0, 0}},
      {"date wider than the cell",
       {100, 20},
       {300, 15},
       {100, 15},
       {47, 13, -47, 20},
       {10, 18, 300, 15},
       {10, 18, 300, 15},
       {47, 33, 100, 15}},
  };
  for (const Case& each : cases) {
    phone.measure("title", each.title);
    phone.measure("date", each.date);
    phone.measure("subtitle", each.subtitle);
    for (const bool right : {false, true}) {
      SCOPED_TRACE(std::string(each.what) + (right ? ", date at the right" : ""));
      exported<bool>("rightAlignedDate") = right;
      own.layOut();
      EXPECT_EQ(frameOf(cell->primaryLabel()), each.titleFrame);
      EXPECT_EQ(frameOf(cell->relevanceDateLabel()), right ? each.rightDateFrame : each.dateFrame);
      EXPECT_EQ(frameOf(cell->subtitleLabel()), each.subtitleFrame);
      EXPECT_EQ(exported<double>("cellWithoutSubtitleHeight"), each.title.height + 26);
      EXPECT_EQ(exported<double>("cellWithSubtitleHeight"), each.title.height + each.subtitle.height + 26);
    }
  }
  phone.measure("title", {100, 20});
  cell->subtitleLabel()->setText(nullptr);
  own.layOut();
  EXPECT_EQ(frameOf(cell->subtitleLabel()), (Frame{47, 33, 0, 0})) << "no subtitle";
}

TEST(CellLayout, SetsFontsAndColours) {
  OwnCell own;
  SBLockScreenBulletinCell* const cell = own.cell;
  exported<NSInteger>("textSize") = 19;
  exported<NSInteger>("subtitleTextSize") = 13;
  exported<NSInteger>("dateTextSize") = 11;
  setColor("textColor", UIColor::redColor());
  setColor("subtitleTextColor", UIColor::blueColor());
  setColor("dateTextColor", UIColor::brownColor());
  cell->primaryLabel()->setFont(objc::sendToClass<UIFont, "boldSystemFontOfSize:", UIFont*>(CGFloat{30}));
  UIFont* const expected = objc::sendToClass<UIFont, "boldSystemFontOfSize:", UIFont*>(CGFloat{19});
  own.layOut();
  EXPECT_TRUE(cell->primaryLabel()->font()->isEqual(expected)) << "its own font at another size";
  EXPECT_EQ(cell->subtitleLabel()->font()->pointSize(), 13);
  EXPECT_EQ(cell->relevanceDateLabel()->font()->pointSize(), 11);
  EXPECT_EQ(hexOf(cell->primaryLabel()->textColor()), "#FF0000");
  EXPECT_EQ(hexOf(cell->subtitleLabel()->textColor()), "#0000FF");
  EXPECT_EQ(hexOf(cell->relevanceDateLabel()->textColor()), hexOf(UIColor::brownColor()));
  EXPECT_TRUE(cell->secondaryLabel()->textColor()->isEqual(UIColor::clearColor()))
      << "the tag is never to be seen";
  EXPECT_STREQ(objc::readIvar<UILabel>(cell, "_unlockTextLabel")->text()->UTF8String(), "");
  exported<bool>("titleColorSameAsCalendarColor") = true;
  own.layOut();
  EXPECT_EQ(hexOf(cell->primaryLabel()->textColor()), "#00FF00");
}

TEST(CellLayout, RecordsWithoutTagHaveAWhiteTitleInCalendarColour) {
  OwnCell own(1144.17, nullptr);
  exported<bool>("titleColorSameAsCalendarColor") = true;
  own.layOut();
  EXPECT_EQ(hexOf(own.cell->primaryLabel()->textColor()), "#FFFFFF");
  const Texts lines = RecordingLockScreen::log();
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(lines[1], "TVM: did not find custom color string! (2)");
  exported<bool>("titleColorSameAsCalendarColor") = false;
  own.layOut();
  EXPECT_EQ(RecordingLockScreen::log().size(), 1U) << "the tag is read for the title's colour only";
}

TEST(CellLayout, LeavesCellsOfOthersAsTheHostLaidThemOut) {
  RecordingLockScreen phone;
  phone.add("Pellanor 0");
  phone.add(nullptr);
  phone.addRecord(nullptr, "SBAwayCardListItem");
  const char* const classes[] = {"SBAwayBulletinListItem", "SBAwayBulletinListItem", "SBAwayCardListItem",
                                 "(null)"};
  constexpr NSInteger kNotInTheTable = -1;
  for (const NSInteger row : {NSInteger{0}, NSInteger{1}, NSInteger{2}, NSInteger{3}, kNotInTheTable}) {
    SBLockScreenBulletinCell* const cell = phone.cellAt(row);
    cell->primaryLabel()->setText("title"_ns);
    cell->secondaryLabel()->setTextColor(UIColor::redColor());
    objc::send<"layoutSubviews">(cell);
    EXPECT_EQ(phone.calls(), Texts{"layout"});
    EXPECT_EQ(frameOf(cell->primaryLabel()), Frame{});
    EXPECT_TRUE(cell->secondaryLabel()->textColor()->isEqual(UIColor::redColor()));
    // A row that is none reads as the first one of the list.
    const char* const itemClass = classes[row == kNotInTheTable ? 0 : row];
    EXPECT_EQ(RecordingLockScreen::log(),
              Texts{std::string("cell layoutSubviews. item class=") + itemClass +
                    ". secondary color=" + UIColor::redColor()->description()->UTF8String()});
  }
  exported<bool>("isEnabled") = false;
  objc::send<"layoutSubviews">(phone.cellAt(0));
  EXPECT_EQ(phone.calls(), Texts{"layout"});
  EXPECT_EQ(RecordingLockScreen::log(), Texts{});
}

TEST(CellLayout, TellsItsStepsInDebugMode) {
  OwnCell own;
  exported<bool>("debugMode") = true;
  for (const bool right : {false, true}) {
    exported<bool>("rightAlignedDate") = right;
    RecordingLockScreen::log();
    own.layOut();
    Texts lines = RecordingLockScreen::log();
    ASSERT_FALSE(lines.empty());
    lines.erase(lines.begin());
    EXPECT_EQ(lines,
              (Texts{"TVM: cell layoutSubviews, detected TVM cell",
                     "TVM: needed date size: {40, 15}, needed title size: {100, 20}, needed subtitle size: "
                     "{100, 15}",
                     right ? "TVM: date is right aligned, x=270.000000"
                           : "TVM: date is not right aligned, x=157.000000",
                     right ? "TVM: date frame is {{270, 18}, {40, 15}}"
                           : "TVM: date frame is {{157, 18}, {40, 15}}",
                     "TVM: subtitle frame is {{47, 33}, {100, 15}}", "TVM: iOS 8+ separators"}));
  }
}

class Separators : public testing::TestWithParam<double> {};

TEST_P(Separators, FollowTheRelease) {
  const bool ios7 = GetParam() < 1048.0;
  OwnCell own(GetParam());
  exported<bool>("debugMode") = true;
  for (const bool shown : {false, true}) {
    exported<bool>("showSeparatorLines") = shown;
    own.layOut();
    EXPECT_EQ(own.phone.calls(),
              ios7 ? (Texts{"layout", shown ? "draws separators yes" : "draws separators no"})
                   : (Texts{"layout", shown ? "separator hidden no" : "separator hidden yes",
                            "separator at top of section no"}));
    EXPECT_EQ(RecordingLockScreen::log().back(),
              ios7 ? "TVM: iOS 7.1- separators" : "TVM: iOS 8+ separators");
  }
}

INSTANTIATE_TEST_SUITE_P(Releases, Separators,
                         testing::Values(847.27, 1047.25, 1047.99, 1048.0, 1141.1, 1280.25));

}  // namespace
}  // namespace phone
