// An ordered list of objects.
#pragma once

#include "platform/foundation/ns_object.h"

class NSString;

class NSArray : public NSObject {
 public:
  NSArray() = delete;

  static NSArray* array() { return objc::sendToClass<NSArray, "array", NSArray*>(); }
  NSUInteger count() { return objc::send<"count", NSUInteger>(this); }
  /// Borrowed. The index must be below count().
  NSObject* objectAtIndex(NSUInteger index) { return objc::send<"objectAtIndex:", NSObject*>(this, index); }
  /// NSNotFound when no entry is equal.
  NSUInteger indexOfObject(NSObject* object) {
    return objc::send<"indexOfObject:", NSUInteger>(this, object);
  }
  /// Nil when the file is missing, unreadable or no array.
  static NSArray* arrayWithContentsOfFile(NSString* path) {
    return objc::sendToClass<NSArray, "arrayWithContentsOfFile:", NSArray*>(path);
  }
  bool writeToFile(NSString* path, bool atomically) {
    return objc::send<"writeToFile:atomically:", bool>(this, path, atomically);
  }
};
