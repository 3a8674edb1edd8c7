// A colour.
#pragma once

#include "platform/coregraphics/cg_color.h"
#include "platform/foundation/ns_object.h"

class UIColor : public NSObject {
 public:
  UIColor() = delete;

  static UIColor* colorWithRed(CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
    return objc::sendToClass<UIColor, "colorWithRed:green:blue:alpha:", UIColor*>(red, green, blue, alpha);
  }
  static UIColor* colorWithWhite(CGFloat white, CGFloat alpha) {
    return objc::sendToClass<UIColor, "colorWithWhite:alpha:", UIColor*>(white, alpha);
  }
  static UIColor* colorWithCGColor(CGColorRef color) {
    return objc::sendToClass<UIColor, "colorWithCGColor:", UIColor*>(color);
  }
  static UIColor* redColor() { return objc::sendToClass<UIColor, "redColor", UIColor*>(); }
  static UIColor* blackColor() { return objc::sendToClass<UIColor, "blackColor", UIColor*>(); }
  static UIColor* grayColor() { return objc::sendToClass<UIColor, "grayColor", UIColor*>(); }
  static UIColor* whiteColor() { return objc::sendToClass<UIColor, "whiteColor", UIColor*>(); }
  static UIColor* greenColor() { return objc::sendToClass<UIColor, "greenColor", UIColor*>(); }
  static UIColor* blueColor() { return objc::sendToClass<UIColor, "blueColor", UIColor*>(); }
  static UIColor* yellowColor() { return objc::sendToClass<UIColor, "yellowColor", UIColor*>(); }
  static UIColor* orangeColor() { return objc::sendToClass<UIColor, "orangeColor", UIColor*>(); }
  static UIColor* purpleColor() { return objc::sendToClass<UIColor, "purpleColor", UIColor*>(); }
  static UIColor* brownColor() { return objc::sendToClass<UIColor, "brownColor", UIColor*>(); }
  static UIColor* clearColor() { return objc::sendToClass<UIColor, "clearColor", UIColor*>(); }
  /// Borrowed from the colour.
  CGColorRef getCGColor() { return objc::send<"CGColor", CGColorRef>(this); }
};
