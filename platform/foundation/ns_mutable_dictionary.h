// A map that can be changed.
#pragma once

#include "platform/foundation/ns_dictionary.h"

class NSMutableDictionary : public NSDictionary {
 public:
  NSMutableDictionary() = delete;

  static NSMutableDictionary* dictionary() {
    return objc::sendToClass<NSMutableDictionary, "dictionary", NSMutableDictionary*>();
  }
  static NSMutableDictionary* dictionaryWithContentsOfFile(NSString* path) {
    return objc::sendToClass<NSMutableDictionary, "dictionaryWithContentsOfFile:", NSMutableDictionary*>(
        path);
  }
  /// Neither object nor key may be nil.
  void setObject(NSObject* object, NSObject* key) { objc::send<"setObject:forKey:">(this, object, key); }
  void removeObjectForKey(NSObject* key) { objc::send<"removeObjectForKey:">(this, key); }
  void removeAllObjects() { objc::send<"removeAllObjects">(this); }
};
