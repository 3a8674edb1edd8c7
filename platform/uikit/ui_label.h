// A line of text.
#pragma once

#include "platform/uikit/ui_view.h"

class UIColor;
class UIFont;

class UILabel : public UIView {
 public:
  UILabel() = delete;

  UIFont* font() { return objc::send<"font", UIFont*>(this); }
  void setFont(UIFont* font) { objc::send<"setFont:">(this, font); }
  UIColor* textColor() { return objc::send<"textColor", UIColor*>(this); }
  void setTextColor(UIColor* color) { objc::send<"setTextColor:">(this, color); }
  NSString* text() { return objc::send<"text", NSString*>(this); }

  enum Alignment : NSInteger { kLeft = 0, kCenter = 1, kRight = 2 };
  void setTextAlignment(NSInteger alignment) { objc::send<"setTextAlignment:">(this, alignment); }
  void setText(NSString* text) { objc::send<"setText:">(this, text); }
};
