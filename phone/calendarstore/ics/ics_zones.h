// The time zones of one calendar file: what its events mean by the names that they use.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "phone/calendarstore/ics/ics_scanner.h"
#include "phone/calendarstore/recurrence/event_zone.h"

namespace phone {

/// A name that the system knows means the system's zone, whatever the file says of it: many files define
/// their zones for the years of their events only. Other names mean what the file defines. A name that
/// nothing defines may be one of Windows's.
class IcsZones {
 public:
  /// `phoneZone` is where the phone is.
  explicit IcsZones(EventZone phoneZone) : phoneZone_(std::move(phoneZone)) {}

  const EventZone& phoneZone() const { return phoneZone_; }

  /// Takes a VTIMEZONE of the file.
  void define(const IcsComponent& component);
  /// Says that the file has no more definitions. Names of Windows's are known from here on, and not before:
  /// the file may define one in its own way, behind the events that use it.
  void endDefinitions();

  /// The zone of that name, or nil. Borrowed.
  const EventZone* find(const std::string& name);

 private:
  struct Definition {
    std::string location;
    std::string text;
  };

  std::optional<EventZone> resolve(const std::string& name) const;

  EventZone phoneZone_;
  std::map<std::string, Definition> definitions_;
  std::map<std::string, std::optional<EventZone>> resolved_;
  bool allDefined_ = false;
};

}  // namespace phone
