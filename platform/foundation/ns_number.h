// A boxed number or boolean.
#pragma once

#include "platform/foundation/ns_object.h"

class NSNumber : public NSObject {
 public:
  NSNumber() = delete;

  static NSNumber* numberWithBool(bool value) {
    return objc::sendToClass<NSNumber, "numberWithBool:", NSNumber*>(value);
  }
  static NSNumber* numberWithFloat(float value) {
    return objc::sendToClass<NSNumber, "numberWithFloat:", NSNumber*>(value);
  }
  static NSNumber* numberWithDouble(double value) {
    return objc::sendToClass<NSNumber, "numberWithDouble:", NSNumber*>(value);
  }
  static NSNumber* numberWithInteger(NSInteger value) {
    return objc::sendToClass<NSNumber, "numberWithInteger:", NSNumber*>(value);
  }
  bool boolValue() { return objc::send<"boolValue", bool>(this); }
  int intValue() { return objc::send<"intValue", int>(this); }
  NSInteger integerValue() { return objc::send<"integerValue", NSInteger>(this); }
  float floatValue() { return objc::send<"floatValue", float>(this); }
  double doubleValue() { return objc::send<"doubleValue", double>(this); }
};
