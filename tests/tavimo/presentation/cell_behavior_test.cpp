// How cells are made and faded.
#include "tests/tavimo/presentation/recording_lock_screen.h"

namespace phone {
namespace {

void makeCell(NSString* reuseIdentifier) {
  auto* const allocated = objc::sendToClass<SBLockScreenBulletinCell, "alloc", id>();
  objc::Owned<NSObject>::adopt(
      objc::send<"initWithStyle:reuseIdentifier:", NSObject*>(allocated, NSInteger{3}, reuseIdentifier));
}

TEST(CellCreation, DropsTheReuseIdentifierWhileEnabledOnly) {
  RecordingLockScreen phone;
  makeCell("BulletinCell"_ns);
  exported<bool>("isEnabled") = false;
  makeCell("BulletinCell"_ns);
  makeCell(nullptr);
  EXPECT_EQ(phone.calls(),
            (Texts{"cell of style 3 none", "cell of style 3 BulletinCell", "cell of style 3 none"}));
}

/// The alpha that reaches the host when it asks for 0.25.
std::string fade(RecordingLockScreen& phone, UIView* cell) {
  objc::send<"setContentAlpha:">(cell, CGFloat{0.25});
  const Texts calls = phone.calls();
  return calls.size() == 1 ? calls.front() : "called " + std::to_string(calls.size()) + " times";
}

TEST(ContentAlpha, OwnRowsAndTheFirstRowStayOpaque) {
  constexpr const char* kOpaque = "alpha 1.000000";
  constexpr const char* kAsked = "alpha 0.250000";
  RecordingLockScreen phone;
  phone.addRecord(nullptr, "SBAwayCardListItem");
  phone.add("Tavimo 0");
  phone.add("Pellanor 0");
  phone.addRecord(nullptr, "SBAwayCardListItem");
  exported<bool>("debugMode") = true;

  EXPECT_EQ(fade(phone, phone.cellAt(0)), kOpaque) << "the first row, whatever it shows";
  EXPECT_EQ(fade(phone, phone.cellAt(-1)), kOpaque) << "a cell that the table does not know";
  const auto loose = objc::make<UIView, "SBLockScreenBulletinCell">();
  EXPECT_EQ(fade(phone, loose.get()), kOpaque) << "a cell outside every table";
  EXPECT_EQ(fade(phone, phone.cellAt(2)), kAsked);
  EXPECT_EQ(fade(phone, phone.cellAt(3)), kAsked);
  EXPECT_EQ(fade(phone, phone.cellAt(9)), kAsked) << "a row beyond the list";
  EXPECT_EQ(fade(phone, phone.cellAt(0, 1)), kAsked) << "the first row of another section";
  EXPECT_EQ(RecordingLockScreen::log(), Texts{});

  EXPECT_EQ(fade(phone, phone.cellAt(1)), kOpaque);
  EXPECT_EQ(RecordingLockScreen::log(),
            Texts{"TVM: cell setContentAlpha, setting to custom. Orig = 0.250000"});
  exported<bool>("debugMode") = false;
  fade(phone, phone.cellAt(1));
  EXPECT_EQ(RecordingLockScreen::log(), Texts{});

  exported<bool>("isEnabled") = false;
  EXPECT_EQ(fade(phone, phone.cellAt(0)), kAsked);
  EXPECT_EQ(fade(phone, phone.cellAt(1)), kAsked);
}

}  // namespace
}  // namespace phone
