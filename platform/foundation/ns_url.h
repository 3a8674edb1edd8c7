// A URL.
#pragma once

#include "platform/foundation/ns_object.h"

class NSString;

class NSURL : public NSObject {
 public:
  NSURL() = delete;

  /// Nil when the text is no URL.
  static NSURL* URLWithString(NSString* text) {
    return objc::sendToClass<NSURL, "URLWithString:", NSURL*>(text);
  }
  NSString* absoluteString() { return objc::send<"absoluteString", NSString*>(this); }
};
