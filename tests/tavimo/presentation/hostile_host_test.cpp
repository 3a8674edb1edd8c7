// What a host or a record can be in ways that the phone's own never are: nothing breaks, and what is not the
// plug-in's stays the host's.
#include <cmath>
#include <limits>

#include "phone/objc/class_definition.h"
#include "platform/foundation/ns_number.h"
#include "platform/uikit/ui_font.h"
#include "tests/tavimo/presentation/recording_lock_screen.h"

namespace phone {
namespace {

void askEverything(RecordingLockScreen& phone, NSInteger row) {
  phone.height(row);
  phone.canEdit(row);
  UIView* const cell = phone.cellAt(row);
  objc::send<"setContentAlpha:">(cell, CGFloat{0.5});
  objc::send<"layoutSubviews">(cell);
}

void askItem(SBAwayListItem* item) {
  item->iconImage();
  item->canBeClearedByNotificationCenter();
}

TEST(HostileHost, RecordsOfAnyContent) {
  RecordingLockScreen phone;
  exported<NSString*>("iconFile") = "DOT"_ns;
  exported<bool>("titleColorSameAsCalendarColor") = true;
  exported<bool>("displayLocation") = true;
  const std::string endless(1'000'000, '|');
  const char16_t halfPair[] = {'T', 'V', 'M', '|', 0xD800, '#', 'F', 'F', 0, '|', 0xDC00, '|'};
  NSString* const broken = objc::sendToClass<NSString, "stringWithCharacters:length:", NSString*>(
      static_cast<const char16_t*>(halfPair), NSUInteger{12});
  NSString* const number = reinterpret_cast<NSString*>(NSNumber::numberWithInteger(7));
  const auto addWith = [&](NSString* identifier, NSString* content) {
    const auto record = objc::make<BBBulletin>();
    record->setBulletinID(identifier);
    record->setMessage(content);
    record->setSubtitle(content);
    return phone.addRecord(record.get());
  };
  NSInteger row = 0;
  for (NSString* const content :
       {textOrNone(endless.c_str()), broken, number, "TVM|#\U0001F600\U0001F600\U0001F600"_ns,
        "TVM|#\u202E\u0301FFFF\u0600"_ns}) {
    askItem(addWith("Tavimo 0"_ns, content));
    EXPECT_FALSE(phone.canEdit(row));
    EXPECT_TRUE(std::isfinite(phone.height(row)));
    askEverything(phone, row++);
  }
  // Identifiers that are no text belong to others; so does an item without a record.
  for (NSString* const identifier : {number, reinterpret_cast<NSString*>(NSMutableArray::array())}) {
    askItem(addWith(identifier, nullptr));
    EXPECT_TRUE(phone.canEdit(row));
    EXPECT_EQ(phone.height(row), RecordingLockScreen::kHostHeight);
    askEverything(phone, row++);
  }
  SBAwayBulletinListItem* const recordless = phone.addRecord(nullptr, "SBAwayBulletinListItem");
  EXPECT_EQ(recordless->iconImage(), RecordingLockScreen::hostIcon());
  EXPECT_TRUE(phone.canEdit(row));
  askEverything(phone, row);
  exported<bool>("debugMode") = true;
  for (NSInteger each = 0; each <= row; ++each) askEverything(phone, each);
}

TEST(HostileHost, RowsThatNoListHas) {
  RecordingLockScreen phone;
  phone.add("Tavimo 0");
  for (const NSInteger row : {1L, -1L, -1000L, 1000000L, __LONG_MAX__}) {
    EXPECT_EQ(phone.height(row), RecordingLockScreen::kHostHeight);
    EXPECT_TRUE(phone.canEdit(row));
  }
  EXPECT_EQ((objc::send<"tableView:heightForRowAtIndexPath:", CGFloat>(
                phone.listView(), static_cast<UITableView*>(nullptr), static_cast<NSIndexPath*>(nullptr))),
            28)
      << "no index path reads as the first row";
}

TEST(HostileHost, ClassesWithoutTheirInstanceVariables) {
  RecordingLockScreen phone({.cellHasUnlockLabel = false, .controllerHasListItems = false});
  SBLockScreenBulletinCell* const cell = phone.cellAt(0);
  objc::send<"layoutSubviews">(cell);
  exported<NSInteger>("wallpaperBlurMode") = 1;
  phone.calls();
  phone.view()->addLockContentUnderlay("NotificationList"_ns);
  EXPECT_EQ(phone.calls(), Texts{"underlay NotificationList"});
}

UIView* itself(UIView* self, SEL) { return self; }

TEST(HostileHost, ViewThatIsItsOwnAncestor) {
  RecordingLockScreen phone;
  phone.add("Tavimo 0");
  registerClass({.name = "OwnAncestor", .superclass = "UIView", .methods = {method("superview", itself)}});
  const auto loop = objc::make<UIView, "OwnAncestor">();
  const auto cell = objc::make<UIView, "SBLockScreenBulletinCell">();
  loop->addSubview(cell.get());
  objc::send<"layoutSubviews">(cell.get());
  phone.calls();
  objc::send<"setContentAlpha:">(cell.get(), CGFloat{0.5});
  EXPECT_EQ(phone.calls(), Texts{"alpha 1.000000"}) << "as a cell outside every table";
}

TEST(HostileHost, CellWithoutAnyLabelOrFont) {
  RecordingLockScreen phone;
  phone.add("Tavimo 0");
  SBLockScreenBulletinCell* const cell = phone.cellAt(0);
  phone.measure("", {0, 0});
  exported<UIColor*>("textColor") = nullptr;
  for (const NSInteger size : {NSInteger{0}, NSInteger{-5}, std::numeric_limits<NSInteger>::max()}) {
    exported<NSInteger>("textSize") = size;
    objc::send<"layoutSubviews">(cell);
    EXPECT_TRUE(std::isfinite(phone.height(0)));
  }
}

}  // namespace
}  // namespace phone
