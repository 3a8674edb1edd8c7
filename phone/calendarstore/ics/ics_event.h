// Reads one VEVENT into the form of the database.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "phone/calendarstore/database/event_record.h"
#include "phone/calendarstore/ics/ics_zones.h"
#include "phone/calendarstore/recurrence/walk_budget.h"

namespace phone {

struct IcsEvent {
  EventRecord record;
  /// The name of a zone that neither the system nor the file knows so far; empty if there is none. The times
  /// that use it are read as wall times.
  std::string unknownZone;
  /// What is left out of its repetitions.
  IcsLeftOut leftOut;
};

/// Throws IcsError when the event has no start, or when a time, a duration or a rule cannot be read: an event
/// at a wrong time is worse than none. Everything else that is odd is passed over. `toEnds` is what finding
/// the ends of the rules of the whole file may still cost.
IcsEvent readIcsEvent(const std::filesystem::path& file, const IcsComponent& component, IcsZones& zones,
                      WalkBudget& toEnds);

}  // namespace phone
