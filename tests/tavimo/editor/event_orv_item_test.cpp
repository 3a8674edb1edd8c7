// The editor's item: its row, its state, and how long it lives.
#include "phone/calendarui/item_table.h"
#include "phone/objc/hooking.h"
#include "phone/uikit/ui_switch.h"
#include "platform/uikit/ui_label.h"
#include "tests/tavimo/editor/recording_calendar.h"
#include "tests/tavimo/editor/row_geometry.h"

namespace phone {
namespace {

int released = 0;
objc::Displaced<void(id, SEL)> deallocDisplaced;
void countRelease(id self, SEL selector) {
  ++released;
  deallocDisplaced(self, selector);
}

/// How many instances of the class come to their end while `work` and its autorelease pool last.
int releasedDuring(const char* className, const std::function<void()>& work) {
  static std::string counted;
  if (counted.empty()) {
    hookMethod(static_cast<Class>(objc_getClass(className)), "dealloc", countRelease, deallocDisplaced);
    counted = className;
  }
  EXPECT_EQ(counted, className) << "one class per test";
  released = 0;
  const AutoreleasePool pool;
  work();
  return released;
}

std::vector<double> sizesAsked;
objc::Displaced<CGSize(UISwitch*, SEL, CGSize)> sizeThatFitsDisplaced;
CGSize noteSizeAsked(UISwitch* self, SEL selector, CGSize size) {
  sizesAsked.insert(sizesAsked.end(), {size.width, size.height});
  return sizeThatFitsDisplaced(self, selector, size);
}

TEST(Rows, AskTheirSwitchForItsSizeWithoutBounds) {
  RecordingCalendar phone;
  hookMethod(objc::classOf<UISwitch>(), "sizeThatFits:", noteSizeAsked, sizeThatFitsDisplaced);
  for (const char* const itemClass : {"EKEventOrvItem", "EKEventDetailItemOrv"}) {
    sizesAsked.clear();
    cellOf(objc::Owned<NSObject>::adopt(objc::send<"new", NSObject*>(objc_getClass(itemClass))).get());
    EXPECT_EQ(sizesAsked, (std::vector<double>{0, 0})) << itemClass;
  }
}

TEST(EditorItem, HasOneRowMadeAnewAtEveryRequest) {
  RecordingCalendar phone;
  const auto event = phone.event("a://?o=1");
  phone.hide({"a://"});
  const auto editor = phone.openEditor(event.get());
  NSObject* const item = RecordingCalendar::ownItem(editor.get());
  for (const NSUInteger index : {1UL, 2UL, ~0UL}) EXPECT_EQ(cellOf(item, index), nullptr);

  UITableViewCell* const first = cellOf(item);
  UITableViewCell* const second = objc::send<"cellForSubitemAtIndex:", UITableViewCell*>(item, NSUInteger{0});
  EXPECT_NE(first, second);
  for (UITableViewCell* const cell : {first, second}) {
    expectRowGeometry(cell);
    EXPECT_FALSE(switchIn(cell)->isOn());
  }
  EXPECT_EQ(objc::readIvar<UITableViewCell>(item, "cell"), second);
  EXPECT_EQ(objc::readIvar<UISwitch>(item, "mySwitch"), switchIn(second));
  EXPECT_EQ(objc::readIvar<NSObject>(item, "disabledHelpButton"), nullptr);
  EXPECT_EQ(objc::readIvar<NSObject>(item, "tapGestureRecognizer"), nullptr);

  // The row made first still tells the item, which writes and logs nothing.
  flipSwitch(switchIn(first));
  EXPECT_TRUE(RecordingCalendar::isShown(editor.get()));
  EXPECT_TRUE(switchIn(cellOf(item))->isOn());
  EXPECT_EQ(phone.store()->size(), 1U);
  EXPECT_EQ(RecordingCalendar::log(), Texts{});
}

TEST(EditorItem, TellsItsSuperclassOfItsEventFirst) {
  RecordingCalendar phone;
  const auto event = phone.event("a://?o=1");
  phone.hide({"a://"});
  const auto item = objc::make<NSObject, "EKEventOrvItem">();
  EXPECT_FALSE((objc::send<"showOnLockscreen", bool>(item.get()))) << "a new item shows nothing yet";
  const auto point = [&](EKCalendarItem* to) {
    objc::send<"setCalendarItem:store:">(item.get(), to,
                                         reinterpret_cast<EKEventStore*>(phone.event({}).get()));
    return objc::send<"showOnLockscreen", bool>(item.get());
  };
  EXPECT_FALSE(point(event.get()));
  EXPECT_TRUE(point(nullptr));
  EXPECT_EQ(phone.calls(),
            (Texts{"setCalendarItem:store: event store", "setCalendarItem:store: none store"}));
}

TEST(EditorItem, GoesWithItsEditor) {
  RecordingCalendar phone;
  const auto event = phone.event("a://?o=1");
  const auto useEditor = [&](bool close) {
    const AutoreleasePool pool;
    const auto editor = phone.openEditor(event.get());
    RecordingCalendar::choose(editor.get(), false);
    cellOf(RecordingCalendar::ownItem(editor.get()));
    if (close) RecordingCalendar::close(editor.get());
  };
  EXPECT_EQ(releasedDuring("EKEventOrvItem",
                           [&] {
                             for (int i = 0; i < 10; ++i) useEditor(i % 2 == 0);
                           }),
            10);
}

TEST(EditorItem, ReleasesEveryRowThatItMade) {
  RecordingCalendar phone;
  const auto event = phone.event("a://?o=1");
  EXPECT_EQ(releasedDuring("UITableViewCell",
                           [&] {
                             const AutoreleasePool pool;
                             const auto editor = phone.openEditor(event.get());
                             for (int i = 0; i < 100; ++i) cellOf(RecordingCalendar::ownItem(editor.get()));
                           }),
            100);
}

}  // namespace
}  // namespace phone
