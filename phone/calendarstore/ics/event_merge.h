// Bringing an event from a file into the database, where an older or newer version of it may be.
#pragma once

#include "phone/calendarstore/database/calendar_database.h"
#include "phone/calendarstore/database/event_record.h"

namespace phone {

enum class MergeOutcome {
  kAdded,
  kUpdated,
  /// The database has it just so.
  kUnchanged,
  /// The database has a newer version, such as one that was edited on the phone; that one stays.
  kOlder,
};

struct MergedEvent {
  MergeOutcome outcome;
  std::int64_t row;
};

/// The later change wins. Where one of the two does not say when it was changed, the higher revision wins;
/// with equal ones, the file.
MergedEvent mergeEvent(CalendarDatabase& database, const EventRecord& event);

}  // namespace phone
