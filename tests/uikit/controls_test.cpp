// Switches and tap recognisers: who is told what, and when nobody is.
#include "phone/uikit/gesture_recognizer.h"
#include "phone/uikit/ui_alert_view.h"
#include "phone/uikit/ui_switch.h"
#include "phone/uikit/ui_view.h"
#include "platform/uikit/ui_table_view_cell.h"
#include "platform/uikit/ui_tap_gesture_recognizer.h"
#include "tests/uikit/uikit_test.h"

namespace phone {
namespace {

struct ListenerState {
  int calls = 0;
  NSObject* sender = nullptr;
  bool wasOn = false;
  NSInteger alertButton = -1;
};

void switchChanged(NSObject* self, SEL, UISwitch* sender) {
  auto& listener = stateOf<ListenerState>(self);
  ++listener.calls;
  listener.sender = sender;
  listener.wasOn = sender->isOn();
}

void tapped(NSObject* self, SEL) { ++stateOf<ListenerState>(self).calls; }

void alertClicked(NSObject* self, SEL, UIAlertView*, NSInteger button) {
  stateOf<ListenerState>(self).alertButton = button;
}

class Controls : public UIKitTest {
 protected:
  Controls() {
    registerClass({.name = "Listener",
                   .superclass = "NSObject",
                   .state = state<ListenerState>(),
                   .methods = {method("switchChanged:", switchChanged), method("tapped", tapped),
                               method("alertView:clickedButtonAtIndex:", alertClicked)}});
    listener_ = objc::make<NSObject, "Listener">();
  }
  ListenerState& heard() { return stateOf<ListenerState>(listener_.get()); }

  objc::Owned<NSObject> listener_;
};

TEST_F(Controls, OnlyItsUsersFlipTellsASwitchsTargets) {
  const auto toggle = objc::make<UISwitch>();
  toggle->addTarget(listener_.get(), objc::selector<"switchChanged:">(), UISwitch::kValueChanged);
  toggle->setOn(true);
  EXPECT_EQ(heard().calls, 0);
  EXPECT_TRUE(flipSwitch(toggle.get()));
  EXPECT_EQ(heard().calls, 1);
  EXPECT_EQ(heard().sender, toggle.get());
  EXPECT_FALSE(heard().wasOn);
  objc::send<"setEnabled:">(toggle.get(), false);
  EXPECT_FALSE(flipSwitch(toggle.get()));
  objc::send<"setEnabled:">(toggle.get(), true);
  objc::send<"removeTarget:action:forControlEvents:">(toggle.get(), listener_.get(), SEL(),
                                                      NSUInteger{0x1000});
  EXPECT_TRUE(flipSwitch(toggle.get()));
  EXPECT_EQ(heard().calls, 1);
  EXPECT_TRUE(toggle->isOn());
}

TEST_F(Controls, SwitchKeepsItsSizeAndItsDistanceFromTheRightEdgeOfItsCell) {
  const auto cell = objc::make<UITableViewCell>();
  const auto toggle = objc::make<UISwitch>();
  const CGSize fitting = toggle->sizeThatFits({});
  EXPECT_EQ(fitting.width, 51);
  EXPECT_EQ(fitting.height, 31);
  toggle->setFrame({{254, 6.5}, {400, 1}});
  toggle->setAutoresizingMask(UIView::kFlexibleLeftMargin);
  cell->contentView()->addSubview(toggle.get());
  cell->setFrame({{0, 0}, {375, 60}});
  const CGRect frame = toggle->frame();
  EXPECT_EQ(frame.origin.x, 254 + 55);
  EXPECT_EQ(frame.origin.y, 6.5);
  EXPECT_EQ(frame.size.width, 51);
  EXPECT_EQ(frame.size.height, 31);
}

TEST_F(Controls, TapReachesTheRecogniserOfItsViewOnly) {
  const auto view = makeView<UIView>();
  const auto recognizer = objc::Owned<NSObject>::adopt(objc::send<"initWithTarget:action:", NSObject*>(
      objc::sendToClass<UITapGestureRecognizer, "alloc", id>(), listener_.get(), objc::selector<"tapped">()));
  EXPECT_FALSE(tapView(view.get()));
  objc::send<"addGestureRecognizer:">(view.get(), recognizer.get());
  EXPECT_TRUE(tapView(view.get()));
  EXPECT_EQ(heard().calls, 1);
}

TEST_F(Controls, AlertStaysUntilItsButtonIsTapped) {
  const auto alert = objc::Owned<UIAlertView>::adopt(
      objc::send<"initWithTitle:message:delegate:cancelButtonTitle:otherButtonTitles:", UIAlertView*>(
          objc::sendToClass<UIAlertView, "alloc", id>(), "Title"_ns, "Message"_ns, listener_.get(), "OK"_ns,
          static_cast<NSString*>(nullptr)));
  EXPECT_TRUE(shownAlerts().empty());
  alert->show();
  ASSERT_EQ(shownAlerts().size(), 1U);
  EXPECT_STREQ(alertState(alert.get()).message->UTF8String(), "Message");
  EXPECT_EQ(alertState(alert.get()).buttonTitles.size(), 1U);
  tapAlertButton(alert.get(), 0);
  EXPECT_TRUE(shownAlerts().empty());
  EXPECT_EQ(heard().alertButton, 0);
}

}  // namespace
}  // namespace phone
