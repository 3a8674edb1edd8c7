// Colours: named ones are one object each, as on the phone.
#include "phone/uikit/ui_color.h"

#include <cstdio>
#include <functional>
#include <string>

#include "phone/objc/class_definition.h"
#include "phone/uikit/definitions.h"

namespace phone {

namespace {

struct ColorState {
  CGColor color;
};

UIColor* colorWithRed(Class, SEL, CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
  return makeColor(rgbColor(red, green, blue, alpha)).autorelease();
}

UIColor* colorWithWhite(Class, SEL, CGFloat white, CGFloat alpha) {
  return makeColor(greyColor(white, alpha)).autorelease();
}

UIColor* colorWithCGColor(Class, SEL, CGColorRef color) {
  if (color == nullptr) return nullptr;
  return makeColor(*color).autorelease();
}

UIColor* initWithRed(UIColor* self, SEL, CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
  stateOf<ColorState>(self).color = rgbColor(red, green, blue, alpha);
  return self;
}

UIColor* initWithWhite(UIColor* self, SEL, CGFloat white, CGFloat alpha) {
  stateOf<ColorState>(self).color = greyColor(white, alpha);
  return self;
}

/// A class method that gives the same object at every call.
template <CGColor Components>
MethodDefinition namedColor(const char* selector) {
  UIColor* (*const get)(Class, SEL) = [](Class, SEL) {
    static UIColor* const color = makeColor(Components).relinquish();
    return color;
  };
  return classMethod(selector, get);
}

CGColorRef getCGColor(UIColor* self, SEL) { return &stateOf<ColorState>(self).color; }

bool isEqual(UIColor* self, SEL, NSObject* other) {
  if (other == nullptr || !other->isKindOfClass(objc::classOf<UIColor>())) return false;
  return stateOf<ColorState>(self).color == stateOf<ColorState>(other).color;
}

NSUInteger hash(UIColor* self, SEL) {
  const CGColor& color = stateOf<ColorState>(self).color;
  NSUInteger mixed = color.count;
  for (const CGFloat component : color.components) {
    mixed = mixed * 31 + std::hash<CGFloat>()(component);
  }
  return mixed;
}

NSString* description(UIColor* self, SEL) {
  const CGColor& color = stateOf<ColorState>(self).color;
  std::string text = color.count == 2 ? "UIDeviceWhiteColorSpace" : "UIDeviceRGBColorSpace";
  for (std::size_t i = 0; i < color.count; ++i) {
    char number[32];
    std::snprintf(number, sizeof number, " %g", color.components[i]);
    text += number;
  }
  return NSString::stringWithUTF8String(text.c_str());
}

}  // namespace

objc::Owned<UIColor> makeColor(const CGColor& color) {
  auto made = objc::make<UIColor>();
  stateOf<ColorState>(made.get()).color = color;
  return made;
}

Rgba rgbaOf(UIColor* color) { return rgbaOf(color->getCGColor()); }

ClassDefinition uiColor() {
  return {.name = "UIColor",
          .superclass = "NSObject",
          .state = state<ColorState>(),
          .methods = {
              classMethod("colorWithRed:green:blue:alpha:", colorWithRed),
              classMethod("colorWithWhite:alpha:", colorWithWhite),
              classMethod("colorWithCGColor:", colorWithCGColor),
              namedColor<rgbColor(1, 0, 0, 1)>("redColor"),
              namedColor<rgbColor(0, 1, 0, 1)>("greenColor"),
              namedColor<rgbColor(0, 0, 1, 1)>("blueColor"),
              namedColor<rgbColor(1, 1, 0, 1)>("yellowColor"),
              namedColor<rgbColor(1, 0.5, 0, 1)>("orangeColor"),
              namedColor<rgbColor(0.5, 0, 0.5, 1)>("purpleColor"),
              namedColor<rgbColor(0.6, 0.4, 0.2, 1)>("brownColor"),
              namedColor<greyColor(0, 1)>("blackColor"),
              namedColor<greyColor(0.5, 1)>("grayColor"),
              namedColor<greyColor(2.0 / 3, 1)>("lightGrayColor"),
              namedColor<greyColor(1, 1)>("whiteColor"),
              namedColor<greyColor(0, 0)>("clearColor"),
              method("initWithRed:green:blue:alpha:", initWithRed),
              method("initWithWhite:alpha:", initWithWhite),
              method("CGColor", getCGColor),
              method("isEqual:", isEqual),
              method("hash", hash),
              method("description", description),
          }};
}

}  // namespace phone
