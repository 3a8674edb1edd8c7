// The event view: where the one detail item stands, which event it follows, and what its switch writes.
#include "phone/calendarui/item_table.h"
#include "phone/objc/class_definition.h"
#include "phone/uikit/ui_alert_view.h"
#include "phone/uikit/ui_control.h"
#include "phone/uikit/ui_switch.h"
#include "platform/foundation/ns_number.h"
#include "tests/tavimo/editor/detail_row.h"

namespace phone {
namespace {

class DetailList : public testing::TestWithParam<double> {};

TEST_P(DetailList, HasTheItemBehindTheFirstAlarmItem) {
  RecordingCalendar phone({.foundationVersion = GetParam()});
  const auto event = phone.event("a://?o=1");
  const struct {
    Texts host;
    Texts all;
  } lists[] = {
      {{kPlain, "EKEventAlarmDetailItemOfAnotherName"}, {kPlain, "EKEventAlarmDetailItemOfAnotherName"}},
      {{}, {}},
      {{kAlarm}, {kAlarm, kOwn}},
      {{kAlarm, kPlain}, {kAlarm, kOwn, kPlain}},
      {{kPlain, kAlarm, kPlain}, {kPlain, kAlarm, kOwn, kPlain}},
      {{kPlain, kPlain, kAlarm}, {kPlain, kPlain, kAlarm, kOwn}},
      {{kAlarm, kAlarm}, {kAlarm, kOwn, kAlarm}},
  };
  for (const auto& [host, all] : lists) {
    const auto view = phone.view(event.get(), host);
    for (int request = 0; request < 2; ++request) {
      EXPECT_EQ(classesOf(RecordingCalendar::detailItems(view.get())), all);
    }
  }
  const auto first = phone.view(event.get());
  const auto second = phone.view(event.get());
  EXPECT_EQ(ownItem(first.get()), ownItem(second.get())) << "one item in the process";
  EXPECT_EQ(phone.calls(), Texts{}) << "what the item inherits to point it is never called";
}

INSTANTIATE_TEST_SUITE_P(Releases, DetailList, testing::Values(1047.25, 1141.1, 1144.17, 1280.25));

TEST(EventView, WithoutItemComesAndGoesAsTheHosts) {
  RecordingCalendar phone;
  const auto event = phone.event("a://?o=1");
  const auto view = phone.view(event.get(), {kPlain});
  RecordingCalendar::detailItems(view.get());
  RecordingCalendar::appear(view.get());
  RecordingCalendar::disappear(view.get());
  EXPECT_EQ(phone.calls(), (Texts{"appear animated", "disappear"}));
  EXPECT_EQ(phone.store(), Store());
  EXPECT_EQ(RecordingCalendar::log(), Texts{});
}

TEST(EventView, OfAPhoneWithoutDetailItemsIsTheHosts) {
  RecordingCalendar phone({.hasDetailItemClass = false});
  const auto event = phone.event("a://?o=1");
  const auto view = phone.view(event.get(), {kAlarm});
  for (int turn = 0; turn < 2; ++turn) {
    EXPECT_EQ(classesOf(RecordingCalendar::detailItems(view.get())), Texts{kAlarm});
    RecordingCalendar::appear(view.get());
    RecordingCalendar::disappear(view.get());
  }
  EXPECT_EQ(phone.calls(), (Texts{"appear animated", "disappear", "appear animated", "disappear"}));
}

TEST(EventView, FlipWritesAtOnceAndLogsOneLine) {
  RecordingCalendar phone;
  phone.hide({"kept"});
  const auto event = phone.event("a://b?o=1?o=2");
  const auto view = phone.view(event.get());
  NSObject* const item = ownItem(view.get());
  expectRowGeometry(cellOf(item));
  RecordingCalendar::appear(view.get());
  EXPECT_TRUE(switchOf(item)->isOn());
  constexpr const char* kLine = "Orv switch changed to %s. Event URI: a://b?o=1?o=2, trimmed:a://b";
  const auto line = [](const char* state) {
    std::string text = kLine;
    return Texts{text.replace(text.find("%s"), 2, state)};
  };
  EXPECT_EQ(flip(item), line("OFF"));
  EXPECT_EQ(phone.store(), entries({"a://b", "kept"}));
  EXPECT_FALSE(isShown(item));
  EXPECT_EQ(flip(item), line("ON"));
  EXPECT_EQ(phone.store(), entries({"kept"}));
  // Showing an event that has no entry writes the file all the same.
  std::filesystem::remove(phone.storeFile());
  switchOf(item)->setOn(true);
  objc::send<"switchChanged:">(item, switchOf(item));
  EXPECT_EQ(phone.store(), entries({}));
  EXPECT_TRUE(isShown(item));
}

TEST(EventView, ComingBackFollowsItsOwnEventAndTheStore) {
  RecordingCalendar phone;
  phone.hide({"b://"});
  const auto a = phone.event("a://?o=1");
  const auto b = phone.event("b://?o=1");
  const auto viewA = phone.view(a.get());
  const auto viewB = phone.view(b.get());
  NSObject* const item = ownItem(viewA.get());
  cellOf(item);
  RecordingCalendar::appear(viewA.get());
  EXPECT_TRUE((objc::send<"cellIsVisible", bool>(item)));
  RecordingCalendar::disappear(viewA.get());
  EXPECT_FALSE((objc::send<"cellIsVisible", bool>(item)));
  ownItem(viewB.get());
  EXPECT_FALSE(isShown(item)) << "an entry of another view's event";
  RecordingCalendar::appear(viewB.get());
  EXPECT_FALSE(switchOf(item)->isOn());
  RecordingCalendar::disappear(viewB.get());

  // The first view comes back without building its list again.
  RecordingCalendar::appear(viewA.get());
  EXPECT_TRUE(switchOf(item)->isOn());
  EXPECT_EQ(eventUriOf(item), "a://?o=1");
  flip(item);
  EXPECT_EQ(phone.store(), entries({"a://", "b://"}));

  // An editor changed the store meanwhile.
  phone.hide({"b://"});
  RecordingCalendar::appear(viewA.get());
  EXPECT_TRUE(isShown(item));
  EXPECT_TRUE(switchOf(item)->isOn());
  EXPECT_EQ(phone.calls(), (Texts{"appear animated", "disappear", "appear animated", "disappear",
                                  "appear animated", "appear animated"}));
}

TEST(EventView, HostGoesFirst) {
  RecordingCalendar phone;
  phone.hide({"a://"});
  const auto event = phone.event("a://?o=1");
  const auto view = phone.view(event.get());
  NSObject* item = nullptr;
  // The host builds the process's first list only while its view appears, and asks for the row.
  phone.whileChangingViews() = [&] {
    item = ownItem(view.get());
    cellOf(item);
    switchOf(item)->setOn(true);
  };
  RecordingCalendar::appear(view.get());
  EXPECT_TRUE((objc::send<"cellIsVisible", bool>(item)));
  EXPECT_FALSE(switchOf(item)->isOn());

  bool isVisible = false;
  phone.whileChangingViews() = [&] { isVisible = objc::send<"cellIsVisible", bool>(item); };
  RecordingCalendar::disappear(view.get());
  EXPECT_TRUE(isVisible) << "until the host has done its part";
  EXPECT_FALSE((objc::send<"cellIsVisible", bool>(item)));
}

TEST(EventView, EventWithoutUrlTextIsShownAndNeverWritten) {
  RecordingCalendar phone;
  phone.hide({"a://"});
  const auto known = phone.event("a://?o=1");
  const auto unknown = phone.event({});
  const auto view = phone.view(known.get());
  NSObject* const item = ownItem(view.get());
  cellOf(item);
  const auto expectNothingWritten = [&](const auto& viewOfUnknown) {
    for (const bool listed : {true, false}) {
      if (listed) ownItem(viewOfUnknown.get());
      RecordingCalendar::appear(viewOfUnknown.get());
      EXPECT_TRUE(isShown(item));
      EXPECT_TRUE(switchOf(item)->isOn());
      EXPECT_EQ(eventUriOf(item), "a://?o=1") << "the text of the event before";
      EXPECT_EQ(flip(item), Texts{"Orv switch changed to OFF. Event URI: (null), trimmed:(null)"});
      EXPECT_FALSE(isShown(item));
      EXPECT_EQ(flip(item), Texts{"Orv switch changed to ON. Event URI: (null), trimmed:(null)"});
      EXPECT_EQ(phone.store(), entries({"a://"}));
    }
  };
  expectNothingWritten(phone.view(unknown.get()));
  RecordingCalendar::setTextlessUrl(unknown.get());
  expectNothingWritten(phone.view(unknown.get()));
  expectNothingWritten(phone.view(nullptr));

  RecordingCalendar::appear(view.get());
  EXPECT_FALSE(switchOf(item)->isOn()) << "back at the event that has a text";
  flip(item);
  EXPECT_EQ(phone.store(), entries({}));
}

}  // namespace
}  // namespace phone
