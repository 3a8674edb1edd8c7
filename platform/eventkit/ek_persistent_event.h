// The stored event behind an occurrence.
#pragma once

#include "platform/foundation/ns_object.h"

class EKPersistentEvent : public NSObject {
 public:
  EKPersistentEvent() = delete;

  NSString* eventIdentifier() { return objc::send<"eventIdentifier", NSString*>(this); }
};
