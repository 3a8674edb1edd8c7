// Reads values from a text.
#pragma once

#include "platform/foundation/ns_object.h"

class NSString;

class NSScanner : public NSObject {
 public:
  NSScanner() = delete;

  static NSScanner* scannerWithString(NSString* text) {
    return objc::sendToClass<NSScanner, "scannerWithString:", NSScanner*>(text);
  }
  void setScanLocation(NSUInteger location) { objc::send<"setScanLocation:">(this, location); }
  /// Reads an unsigned hexadecimal number; leaves `value` alone when there is none.
  bool scanHexInt(unsigned int* value) { return objc::send<"scanHexInt:", bool>(this, value); }
};
