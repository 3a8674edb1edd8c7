// Several event views and the one detail item between them: whose event a flip writes for.
#include "tests/tavimo/editor/detail_row.h"

namespace phone {
namespace {

/// Two views that list the item, and one that does not; what a flip writes for.
class ViewsTogether : public testing::Test {
 protected:
  objc::Owned<EKEventViewController> open(const char* url, const Texts& itemClasses = {kAlarm}) {
    const auto event = phone_.event(url);
    auto view = phone_.view(event.get(), itemClasses);
    if (NSObject* const item = ownItem(view.get()); item != nullptr) {
      item_ = item;
      cellOf(item);
    }
    return view;
  }
  /// The key that a flip writes.
  std::string flipWrites() {
    std::filesystem::remove(phone_.storeFile());
    switchOf(item_)->setOn(true);
    flip(item_);
    const Store written = phone_.store();
    return written && written->size() == 1 ? written->begin()->first : "not one entry";
  }

  RecordingCalendar phone_;
  NSObject* item_ = nullptr;
  objc::Owned<EKEventViewController> a_ = open("a://?o=1");
  objc::Owned<EKEventViewController> b_ = open("b://?o=1");
  objc::Owned<EKEventViewController> withoutRow_ = open("none://?o=1", {kPlain});
};

TEST_F(ViewsTogether, ViewBelowThatBuildsItsListAgainIsNotInUse) {
  RecordingCalendar::appear(a_.get());
  RecordingCalendar::disappear(a_.get());
  RecordingCalendar::appear(b_.get());
  phone_.hide({"b://"});
  ownItem(b_.get());
  ownItem(a_.get());
  cellOf(item_);
  EXPECT_FALSE(switchOf(item_)->isOn()) << "the row still shows the event on screen";
  EXPECT_EQ(flipWrites(), "b://");
}

TEST_F(ViewsTogether, ViewNotYetOnScreenIsNotInUse) {
  RecordingCalendar::appear(a_.get());
  const auto early = open("early://?o=1");
  EXPECT_EQ(flipWrites(), "a://");
  RecordingCalendar::disappear(a_.get());
  RecordingCalendar::appear(early.get());
  EXPECT_EQ(flipWrites(), "early://");
}

TEST_F(ViewsTogether, ViewWithoutTheRowIsNeverInUse) {
  phone_.hide({"none://"});
  RecordingCalendar::appear(a_.get());
  RecordingCalendar::appear(withoutRow_.get());
  EXPECT_TRUE(switchOf(item_)->isOn());
  EXPECT_EQ(flipWrites(), "a://");
  RecordingCalendar::disappear(withoutRow_.get());
  EXPECT_EQ(flipWrites(), "a://");
}

TEST_F(ViewsTogether, ViewThatWasCoveredComesBackInUse) {
  RecordingCalendar::appear(a_.get());
  RecordingCalendar::appear(b_.get());
  EXPECT_EQ(flipWrites(), "b://");
  EXPECT_FALSE(isShown(item_));
  RecordingCalendar::disappear(b_.get());
  EXPECT_TRUE(switchOf(item_)->isOn());
  EXPECT_EQ(eventUriOf(item_), "a://?o=1");
  EXPECT_EQ(flipWrites(), "a://");
}

TEST_F(ViewsTogether, ListBuiltLateBringsTheRowToTheViewOnScreen) {
  RecordingCalendar::appear(a_.get());
  const auto event = phone_.event("late://?o=1");
  const auto late = phone_.view(event.get());
  RecordingCalendar::appear(late.get());
  EXPECT_EQ(flipWrites(), "a://");
  ownItem(late.get());
  EXPECT_EQ(flipWrites(), "late://");
  RecordingCalendar::setUrlText(event.get(), "moved://?o=1");
  EXPECT_EQ(flipWrites(), "moved://") << "the host may change the event of a view on screen";
}

TEST_F(ViewsTogether, RowThatLeftTheListOnScreenIsNotInUse) {
  RecordingCalendar::appear(a_.get());
  RecordingCalendar::appear(b_.get());
  RecordingCalendar::setItems(b_.get(), {kPlain});
  RecordingCalendar::detailItems(b_.get());
  EXPECT_EQ(flipWrites(), "a://");
}

TEST_F(ViewsTogether, FreedWithoutDisappearingIsNotOnScreen) {
  RecordingCalendar::appear(a_.get());
  {
    const auto freed = open("freed://?o=1");
    RecordingCalendar::appear(freed.get());
    EXPECT_EQ(flipWrites(), "freed://");
  }
  EXPECT_EQ(flipWrites(), "a://");
  for (int i = 0; i < 50; ++i) RecordingCalendar::appear(open("more://?o=1").get());
  EXPECT_EQ(flipWrites(), "a://");
  // A view that is not on screen yet may lie where a freed one lay.
  const auto event = phone_.event("early://?o=1");
  auto freed = phone_.view(event.get());
  RecordingCalendar::appear(freed.get());
  const auto* const place = freed.get();
  freed = {};
  std::vector<objc::Owned<EKEventViewController>> early;
  do {
    early.push_back(phone_.view(event.get()));
    ownItem(early.back().get());
  } while (early.back().get() != place && early.size() < 100);
  EXPECT_EQ(flipWrites(), "a://");
  // More than any host shows at once, all alive: the oldest are forgotten, and the last one stays in use.
  std::vector<objc::Owned<EKEventViewController>> many;
  for (int i = 0; i < 50; ++i) {
    many.push_back(open(("many" + std::to_string(i) + "://?o=1").c_str()));
    RecordingCalendar::appear(many.back().get());
  }
  EXPECT_EQ(flipWrites(), "many49://");
  RecordingCalendar::disappear(many.back().get());
  EXPECT_EQ(flipWrites(), "many48://");
}

TEST_F(ViewsTogether, WithoutAnyOnScreenAFlipIsForTheListBuiltLast) {
  EXPECT_EQ(flipWrites(), "b://");
  ownItem(a_.get());
  EXPECT_EQ(flipWrites(), "a://");
  RecordingCalendar::appear(b_.get());
  RecordingCalendar::disappear(b_.get());
  EXPECT_EQ(flipWrites(), "b://");
}

TEST(FirstView, IsInUseAlsoWhenItAppearsBeforeThereIsAnItem) {
  RecordingCalendar phone;
  const auto event = phone.event("first://?o=1");
  const auto first = phone.view(event.get());
  RecordingCalendar::appear(first.get());
  NSObject* const item = ownItem(first.get());
  const auto other = phone.event("other://?o=1");
  ownItem(phone.view(other.get()).get());
  EXPECT_EQ(eventUriOf(item), "first://?o=1");
}

}  // namespace
}  // namespace phone
