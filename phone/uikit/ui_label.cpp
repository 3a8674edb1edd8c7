#include "phone/uikit/ui_label.h"

#include "phone/uikit/definitions.h"
#include "phone/uikit/ui_color.h"
#include "phone/uikit/ui_font.h"
#include "phone/uikit/ui_graphics.h"
#include "platform/uikit/string_drawing.h"

namespace phone {

namespace {

constexpr double kDefaultPoints = 17;

UILabel* initWithFrame(UILabel* self, SEL selector, CGRect frame) {
  self = objc::sendSuper<UILabel*>(objc::classOf<UIView>(), self, selector, frame);
  self->setFont(nullptr);
  self->setTextColor(nullptr);
  stateOf<ViewState>(self).userInteractionEnabled = false;
  return self;
}

void setText(UILabel* self, SEL, NSString* text) {
  // A copy, so that a text which is changed later does not change the label.
  stateOf<LabelState>(self).text = objc::Owned<NSString>::adopt(objc::send<"copy", NSString*>(text));
}

void setFont(UILabel* self, SEL, UIFont* font) {
  auto& own = stateOf<LabelState>(self).font;
  own = font == nullptr ? makeFont(FontWeight::kRegular, kDefaultPoints) : objc::Owned<UIFont>::retain(font);
  // A label is often as high as the system font's line, which letters of other scripts pass a little.
  constexpr double kShareOfLine = 0.35;
  stateOf<ViewState>(self).overhang = kShareOfLine * typeFaceOf(own.get()).lineHeight();
}

void setTextColor(UILabel* self, SEL, UIColor* color) {
  stateOf<LabelState>(self).textColor =
      objc::Owned<UIColor>::retain(color == nullptr ? UIColor::blackColor() : color);
}

CGSize sizeThatFits(UILabel* self, SEL, CGSize) { return sizeWithFont(self->text(), self->font()); }

void drawRect(UILabel* self, SEL, CGRect) {
  const auto& [text, font, color, alignment] = stateOf<LabelState>(self);
  cairo_t* const canvas = currentCanvas();
  if (canvas == nullptr || !text) return;
  typeFaceOf(font.get())
      .draw(canvas, text.get(), self->bounds(), static_cast<TextAlignment>(alignment), rgbaOf(color.get()));
}

}  // namespace

ClassDefinition uiLabel() {
  return {.name = "UILabel",
          .superclass = "UIView",
          .state = state<LabelState>(),
          .methods = {
              method("initWithFrame:", initWithFrame),
              getter<&LabelState::text>("text"),
              method("setText:", setText),
              getter<&LabelState::font>("font"),
              method("setFont:", setFont),
              getter<&LabelState::textColor>("textColor"),
              method("setTextColor:", setTextColor),
              property<&LabelState::textAlignment, "textAlignment">(),
              method("sizeThatFits:", sizeThatFits),
              method("drawRect:", drawRect),
          }};
}

}  // namespace phone
