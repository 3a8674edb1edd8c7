// The plug-in's hidden-event store, as the plug-in reads it.
#pragma once

#include <string>

#include "platform/foundation/ns_dictionary.h"
#include "platform/objc/owned.h"

namespace phone {

/// What the keys of the calendar's events in the store begin with.
std::string hiddenKeyPrefix(const std::string& calendarIdentifier);

class HiddenEvents {
 public:
  /// What the file says now; a file that is missing hides nothing. Throws std::runtime_error with file and
  /// reason when it cannot be read or holds something else.
  HiddenEvents();

  bool contains(const std::string& eventIdentifier) const;

 private:
  objc::Owned<NSDictionary> store_;
};

}  // namespace phone
