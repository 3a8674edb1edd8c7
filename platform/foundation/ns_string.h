// A text. Lengths and indexes count UTF-16 code units.
#pragma once

#include "platform/foundation/ns_object.h"
#include "platform/foundation/ns_range.h"

class NSArray;

class NSString : public NSObject {
 public:
  NSString() = delete;

  static NSString* stringWithUTF8String(const char* utf8) {
    return objc::sendToClass<NSString, "stringWithUTF8String:", NSString*>(utf8);
  }
  /// The formatted text. Variadic arguments follow the platform's format rules.
  template <typename... Arguments>
  static NSString* stringWithFormat(NSString* format, Arguments... arguments) {
    using Formatter = NSString* (*)(id, SEL, NSString*, ...);
    Class const strings = objc::classOf<NSString>();
    SEL const selector = objc::selector<"stringWithFormat:">();
    return objc::sendVariadic<Formatter>(strings, selector, format, arguments...);
  }

  NSUInteger length() { return objc::send<"length", NSUInteger>(this); }
  const char* UTF8String() { return objc::send<"UTF8String", const char*>(this); }
  bool hasPrefix(NSString* prefix) { return objc::send<"hasPrefix:", bool>(this, prefix); }
  bool isEqualToString(NSString* other) { return objc::send<"isEqualToString:", bool>(this, other); }
  NSRange rangeOfString(NSString* searched) { return objc::send<"rangeOfString:", NSRange>(this, searched); }
  /// Compares unit by unit, without regard to composed characters.
  static constexpr NSUInteger kLiteralSearch = 2;
  NSRange rangeOfString(NSString* searched, NSUInteger options) {
    return objc::send<"rangeOfString:options:", NSRange>(this, searched, options);
  }
  /// Copies the units of the range, which must lie inside the text.
  void getCharacters(char16_t* units, NSRange range) {
    objc::send<"getCharacters:range:">(this, units, range);
  }
  NSString* substringToIndex(NSUInteger index) {
    return objc::send<"substringToIndex:", NSString*>(this, index);
  }
  NSString* substringWithRange(NSRange range) {
    return objc::send<"substringWithRange:", NSString*>(this, range);
  }
  /// Every occurrence of one text replaced by the other.
  NSString* stringByReplacingOccurrencesOfString(NSString* searched, NSString* replacement) {
    return objc::send<"stringByReplacingOccurrencesOfString:withString:", NSString*>(this, searched,
                                                                                     replacement);
  }
  NSArray* componentsSeparatedByString(NSString* separator) {
    return objc::send<"componentsSeparatedByString:", NSArray*>(this, separator);
  }
  NSInteger integerValue() { return objc::send<"integerValue", NSInteger>(this); }
  int intValue() { return objc::send<"intValue", int>(this); }
  bool boolValue() { return objc::send<"boolValue", bool>(this); }
};
