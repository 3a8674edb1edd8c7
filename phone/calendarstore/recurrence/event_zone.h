// The time zone of an event: one that the system knows by name, or one that a calendar file defines itself.
#pragma once

#include <cctz/time_zone.h>
#include <memory>
#include <optional>
#include <string>

#include "phone/calendarstore/recurrence/calendar_time.h"

namespace phone {

class DefinedZone;

/// Converts between instants and wall times. Copies share what they know. A wall time that a clock change
/// skips is read with the offset before the change; one that comes twice means the first of the two.
class EventZone {
 public:
  static EventZone utc();
  /// The system's zone of that IANA name, also when a program put a path of its own in front of it. None when
  /// the system knows no such zone.
  static std::optional<EventZone> named(const std::string& name);
  /// A zone that the file defines. `definition` is the text of its VTIMEZONE, reduced by zoneDefinition().
  /// None when it is not usable.
  static std::optional<EventZone> defined(const std::string& name, const std::string& definition);

  const std::string& name() const { return name_; }
  /// The VTIMEZONE's text; empty for a zone that the system knows.
  const std::string& definition() const { return definition_; }

  Seconds toInstant(Seconds wall) const;
  Seconds toWall(Seconds instant) const;

 private:
  EventZone() = default;

  std::string name_;
  std::string definition_;
  cctz::time_zone known_;
  std::shared_ptr<const DefinedZone> custom_;
};

}  // namespace phone
