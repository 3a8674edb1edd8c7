// A map from key to object.
#pragma once

#include "platform/foundation/ns_object.h"

class NSArray;
class NSString;

class NSDictionary : public NSObject {
 public:
  NSDictionary() = delete;

  NSUInteger count() { return objc::send<"count", NSUInteger>(this); }
  /// Borrowed; nil when there is no entry or the key is nil.
  NSObject* objectForKey(NSObject* key) { return objc::send<"objectForKey:", NSObject*>(this, key); }
  NSArray* allKeys() { return objc::send<"allKeys", NSArray*>(this); }
  /// Nil when the file is missing, unreadable or no dictionary.
  static NSDictionary* dictionaryWithContentsOfFile(NSString* path) {
    return objc::sendToClass<NSDictionary, "dictionaryWithContentsOfFile:", NSDictionary*>(path);
  }
  bool writeToFile(NSString* path, bool atomically) {
    return objc::send<"writeToFile:atomically:", bool>(this, path, atomically);
  }
};
