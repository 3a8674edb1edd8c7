#include "phone/uikit/ui_switch.h"

#include "phone/uikit/definitions.h"
#include "phone/uikit/ui_control.h"
#include "phone/uikit/ui_graphics.h"
#include "phone/uikit/view_drawing.h"

namespace phone {

namespace {

constexpr CGSize kSize = {51, 31};

struct SwitchState {
  bool on = false;
};

/// A switch has one size.
UISwitch* initWithFrame(UISwitch* self, SEL selector, CGRect frame) {
  return objc::sendSuper<UISwitch*>(objc::classNamed<"UIControl">(), self, selector,
                                    CGRect{frame.origin, kSize});
}

void setFrame(UISwitch* self, SEL selector, CGRect frame) {
  objc::sendSuper(objc::classNamed<"UIControl">(), self, selector, CGRect{frame.origin, kSize});
}

CGSize sizeThatFits(UISwitch*, SEL, CGSize) { return kSize; }

void setOnAnimated(UISwitch* self, SEL, bool on, bool) { self->setOn(on); }

void drawRect(UISwitch* self, SEL, CGRect) {
  cairo_t* const canvas = currentCanvas();
  if (canvas == nullptr) return;
  constexpr double kRim = 1.5;
  constexpr double kKnob = kSize.height - 2 * kRim;
  const bool on = stateOf<SwitchState>(self).on;
  addRoundedRect(canvas, {{0, 0}, kSize}, kSize.height / 2);
  on ? cairo_set_source_rgb(canvas, 0.30, 0.85, 0.39) : cairo_set_source_rgb(canvas, 0.90, 0.90, 0.90);
  cairo_fill(canvas);
  const double left = on ? kSize.width - kRim - kKnob : kRim;
  if (!on) {
    addRoundedRect(canvas, {{kRim, kRim}, {kSize.width - 2 * kRim, kKnob}}, kKnob / 2);
    cairo_set_source_rgb(canvas, 1, 1, 1);
    cairo_fill(canvas);
  }
  // The knob's shadow: a soft edge around and below it, inside the switch.
  addRoundedRect(canvas, {{0, 0}, kSize}, kSize.height / 2);
  cairo_clip(canvas);
  for (int step = 1; step <= 3; ++step) {
    const double spread = 0.5 * step;
    addRoundedRect(canvas, {{left - spread, kRim + 1 - spread}, {kKnob + 2 * spread, kKnob + 2 * spread}},
                   kKnob / 2 + spread);
    cairo_set_source_rgba(canvas, 0, 0, 0, 0.05);
    cairo_fill(canvas);
  }
  addRoundedRect(canvas, {{left, kRim}, {kKnob, kKnob}}, kKnob / 2);
  cairo_set_source_rgb(canvas, 1, 1, 1);
  cairo_fill_preserve(canvas);
  // A hairline, or the white knob would vanish in a white switch that is off.
  cairo_set_line_width(canvas, 0.5);
  cairo_set_source_rgba(canvas, 0, 0, 0, 0.15);
  cairo_stroke(canvas);
}

}  // namespace

bool flipSwitch(UISwitch* toggle) {
  if (toggle == nullptr || !stateOf<ControlState>(toggle).enabled) return false;
  toggle->setOn(!toggle->isOn());
  objc::send<"sendActionsForControlEvents:">(toggle, NSUInteger{UISwitch::kValueChanged});
  return true;
}

ClassDefinition uiSwitch() {
  return {.name = "UISwitch",
          .superclass = "UIControl",
          .state = state<SwitchState>(),
          .methods = {
              method("initWithFrame:", initWithFrame),
              method("setFrame:", setFrame),
              method("sizeThatFits:", sizeThatFits),
              property<&SwitchState::on, "isOn", "setOn:">(),
              method("setOn:animated:", setOnAnimated),
              method("drawRect:", drawRect),
          }};
}

}  // namespace phone
