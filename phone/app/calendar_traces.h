// What the phone's files remember of calendars, outside of the calendar store: whether they are shown and
// chosen, and which of their events are hidden.
#pragma once

#include <string>
#include <vector>

#include "platform/foundation/ns_mutable_array.h"
#include "platform/foundation/ns_mutable_dictionary.h"
#include "platform/objc/owned.h"

namespace phone {

class CalendarTraces {
 public:
  /// Reads the files. Throws std::runtime_error when one of them holds what it should not: forgetting would
  /// lose it.
  CalendarTraces();

  /// Takes the calendars out and writes the files that change. Throws std::runtime_error with file and
  /// reason.
  void forget(const std::vector<std::string>& identifiers);

 private:
  objc::Owned<NSMutableDictionary> calendarApp_;
  objc::Owned<NSMutableArray> selection_;
  objc::Owned<NSMutableDictionary> hiddenEvents_;
};

}  // namespace phone
