// The event view: where the one detail item stands, which event it follows, and what its switch writes.
#include "phone/calendarui/item_table.h"
#include "phone/objc/class_definition.h"
#include "phone/uikit/ui_alert_view.h"
#include "phone/uikit/ui_control.h"
#include "phone/uikit/ui_switch.h"
#include "platform/foundation/ns_number.h"
#include "tests/tavimo/editor/recording_calendar.h"
#include "tests/tavimo/editor/row_geometry.h"
#include "tests/tavimo/support/objects.h"

namespace phone {
namespace {

constexpr const char* kOwn = "EKEventDetailItemOrv";
constexpr const char* kAlarm = "EKEventAlarmDetailItem";
constexpr const char* kPlain = "EKEventDetailItem";

/// The plug-in's item in the view's list (borrowed), or none.
NSObject* ownItem(EKEventViewController* view) {
  NSArray* const items = RecordingCalendar::detailItems(view);
  for (NSUInteger i = 0; i < items->count(); ++i) {
    if (objc::send<"class", Class>(items->objectAtIndex(i)) == objc_getClass(kOwn)) {
      return items->objectAtIndex(i);
    }
  }
  return nullptr;
}

bool isShown(NSObject* item) { return objc::send<"showOnLockscreen", bool>(item); }
UISwitch* switchOf(NSObject* item) { return objc::send<"dndSwitch", UISwitch*>(item); }
std::string eventUriOf(NSObject* item) { return utf8(objc::send<"eventURI", NSString*>(item)); }

Texts flip(NSObject* item) {
  RecordingCalendar::log();
  flipSwitch(switchOf(item));
  return RecordingCalendar::log();
}

Store entries(const Texts& keys) {
  Store wanted(std::in_place);
  for (const std::string& key : keys) wanted->emplace(key, "N");
  return wanted;
}

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

TEST(DetailItem, KeepsOneRow) {
  RecordingCalendar phone;
  const auto event = phone.event("a://?o=1");
  NSObject* const item = ownItem(phone.view(event.get()).get());
  for (const NSUInteger index : {1UL, ~0UL}) EXPECT_EQ(cellOf(item, index), nullptr);
  EXPECT_EQ(switchOf(item), nullptr) << "no row before it is asked for";
  UITableViewCell* const cell = cellOf(item);
  EXPECT_EQ(switchOf(item), switchIn(cell));
  objc::send<"setShowOnLockscreen:">(item, false);
  EXPECT_TRUE(switchOf(item)->isOn());
  EXPECT_EQ((objc::send<"cellForSubitemAtIndex:", UITableViewCell*>(item, NSUInteger{0})), cell);
  EXPECT_FALSE(switchOf(item)->isOn()) << "a request brings the switch up to date";

  const auto& targets = stateOf<ControlState>(switchOf(item)).targets;
  ASSERT_EQ(targets.size(), 1U);
  EXPECT_EQ(targets[0].target, item);
  EXPECT_STREQ(sel_getName(targets[0].action), "switchChanged:");
  EXPECT_EQ(targets[0].events, 0x1000U);
  auto* const recognizer = objc::send<"tapGestureRecognizer", NSObject*>(item);
  ASSERT_NE(recognizer, nullptr);
  EXPECT_EQ((objc::send<"view", UIView*>(recognizer)), nullptr) << "attached to no view";
}

TEST(DetailItem, WritesForAnEventNamedByItsAccessorAlone) {
  RecordingCalendar phone;
  const auto item = objc::make<NSObject, "EKEventDetailItemOrv">();
  cellOf(item.get());
  EXPECT_FALSE(switchOf(item.get())->isOn()) << "an unset boolean";
  EXPECT_EQ(flip(item.get()), Texts{"Orv switch changed to ON. Event URI: (null), trimmed:(null)"});
  EXPECT_EQ(phone.store(), Store()) << "no event, nothing to write";
  objc::send<"setEventURI:">(item.get(), "a://b?o=1"_ns);
  EXPECT_EQ(flip(item.get()), Texts{"Orv switch changed to OFF. Event URI: a://b?o=1, trimmed:a://b"});
  EXPECT_EQ(phone.store(), entries({"a://b"}));
}

TEST(DetailItem, KeepsItsPropertiesAndNoVariables) {
  RecordingCalendar phone;
  const auto item = objc::make<NSObject, "EKEventDetailItemOrv">();
  auto* const itemClass = static_cast<Class>(objc_getClass(kOwn));
  EXPECT_EQ(class_getInstanceSize(itemClass), class_getInstanceSize(class_getSuperclass(itemClass)));
  const auto flag = [&](const char* getter) {
    return objc::send<bool>(item.get(), sel_registerName(getter));
  };
  for (const auto& [getter, setter] : {std::pair{"allDayEnabled", "setAllDayEnabled:"},
                                       {"noAlarmSet", "setNoAlarmSet:"},
                                       {"cellIsVisible", "setCellIsVisible:"},
                                       {"showOnLockscreen", "setShowOnLockscreen:"}}) {
    EXPECT_FALSE(flag(getter)) << getter;
    objc::send(item.get(), sel_registerName(setter), true);
    EXPECT_TRUE(flag(getter)) << getter;
    objc::send(item.get(), sel_registerName(setter), false);
    EXPECT_FALSE(flag(getter)) << getter;
  }
  for (const auto& [getter, setter] : {std::pair{"cell", "setCell:"},
                                       {"eventURI", "setEventURI:"},
                                       {"dndSwitch", "setDndSwitch:"},
                                       {"disabledHelpButton", "setDisabledHelpButton:"},
                                       {"tapGestureRecognizer", "setTapGestureRecognizer:"}}) {
    const auto object = [&item, name = getter] {
      return objc::send<NSObject*>(item.get(), sel_registerName(name));
    };
    EXPECT_EQ(object(), nullptr) << getter;
    NSNumber* const value = NSNumber::numberWithDouble(1.5);
    objc::send<void, NSObject*>(item.get(), sel_registerName(setter), value);
    EXPECT_EQ(object(), value) << getter;
    objc::send<void, NSObject*>(item.get(), sel_registerName(setter), nullptr);
    EXPECT_EQ(object(), nullptr) << getter;
  }
  // The base class is as it was.
  const auto plain = objc::make<EKEventDetailItem, "EKEventDetailItem">();
  EXPECT_EQ(cellOf(plain.get()), nullptr);
  EXPECT_FALSE(plain->respondsToSelector(sel_registerName("switchChanged:")));
  plain->setEvent(nullptr, nullptr);
  EXPECT_EQ(phone.calls(), Texts{"setEvent:store:"});
}

TEST(DetailItem, HelpIsAnAlertWithOneButton) {
  RecordingCalendar phone;
  const auto item = objc::make<NSObject, "EKEventDetailItemOrv">();
  objc::send<"showDisabledHelp">(item.get());
  ASSERT_EQ(shownAlerts().size(), 1U);
  const AlertState& alert = alertState(shownAlerts()[0].get());
  EXPECT_EQ(utf8(alert.title.get()), "DnD is not available");
  EXPECT_EQ(utf8(alert.message.get()),
            "Automatic Do Not Disturb mode is available if the event is not an all-day one, and if at least "
            "one alert is set.");
  EXPECT_EQ(alert.delegate, item.get());
  ASSERT_EQ(alert.buttonTitles.size(), 1U);
  EXPECT_EQ(utf8(alert.buttonTitles[0].get()), "OK");
  tapAlertButton(shownAlerts()[0].get(), 0);
  EXPECT_TRUE(shownAlerts().empty());
}

}  // namespace
}  // namespace phone
