// The event view's detail item itself: its row, its properties and its alert.
#include "phone/objc/class_definition.h"
#include "phone/uikit/ui_alert_view.h"
#include "phone/uikit/ui_control.h"
#include "platform/foundation/ns_number.h"
#include "tests/tavimo/editor/detail_row.h"

namespace phone {
namespace {

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
  const auto plain = objc::make<EKEventDetailItem>();
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
