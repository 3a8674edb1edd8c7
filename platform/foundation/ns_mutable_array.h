// A list that can be changed.
#pragma once

#include "platform/foundation/ns_array.h"

class NSMutableArray : public NSArray {
 public:
  NSMutableArray() = delete;

  static NSMutableArray* array() { return objc::sendToClass<NSMutableArray, "array", NSMutableArray*>(); }
  static NSMutableArray* arrayWithArray(NSArray* other) {
    return objc::sendToClass<NSMutableArray, "arrayWithArray:", NSMutableArray*>(other);
  }
  /// The object must not be nil.
  void addObject(NSObject* object) { objc::send<"addObject:">(this, object); }
  void insertObject(NSObject* object, NSUInteger index) {
    objc::send<"insertObject:atIndex:">(this, object, index);
  }
  void replaceObjectAtIndex(NSUInteger index, NSObject* object) {
    objc::send<"replaceObjectAtIndex:withObject:">(this, index, object);
  }
  void removeObjectAtIndex(NSUInteger index) { objc::send<"removeObjectAtIndex:">(this, index); }
  void removeObjectIdenticalTo(NSObject* object) { objc::send<"removeObjectIdenticalTo:">(this, object); }
  void removeObject(NSObject* object) { objc::send<"removeObject:">(this, object); }
  void removeAllObjects() { objc::send<"removeAllObjects">(this); }
};
