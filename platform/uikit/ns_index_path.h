// The place of a row: section and row.
#pragma once

#include "platform/foundation/ns_object.h"

class NSIndexPath : public NSObject {
 public:
  NSIndexPath() = delete;

  static NSIndexPath* indexPathForRow(NSInteger row, NSInteger section) {
    return objc::sendToClass<NSIndexPath, "indexPathForRow:inSection:", NSIndexPath*>(row, section);
  }
  NSInteger row() { return objc::send<"row", NSInteger>(this); }
  NSInteger section() { return objc::send<"section", NSInteger>(this); }
};
