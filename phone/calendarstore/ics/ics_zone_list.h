// The time zones that an exported calendar uses: by which name its events mention each, and the definitions.
#pragma once

#include <map>
#include <string>

#include "phone/calendarstore/recurrence/event_zone.h"

namespace phone {

class IcsZoneList {
 public:
  /// The name of the zone in the file. Two zones of a file's own that are called alike get different ones.
  const std::string& nameOf(const EventZone& zone);

  /// The definitions of all zones that were asked for, as they stand in the file; those of the system as far
  /// as its own library can write them.
  std::string definitions() const;

 private:
  /// By name and definition of the zone.
  std::map<std::pair<std::string, std::string>, std::string> names_;
};

}  // namespace phone
