#include "phone/calendarstore/recurrence/event_zone.h"

#include <algorithm>
#include <chrono>

#include "phone/calendarstore/recurrence/defined_zone.h"
#include "phone/calendarstore/recurrence/ical_owned.h"

namespace phone {

namespace {

using UnixTime = cctz::time_point<cctz::seconds>;

UnixTime unixTime(Seconds instant) { return UnixTime(cctz::seconds(instant + kReferenceAfterUnixEpoch)); }

/// Only what a zone's name may look like reaches the library, which would open any file of that name.
bool looksLikeZoneName(const std::string& name) {
  constexpr std::size_t kLongestName = 64;
  if (name.empty() || name.size() > kLongestName || name.front() == '/' || name == "localtime") return false;
  if (name.find("..") != std::string::npos) return false;
  return std::all_of(name.begin(), name.end(), [](unsigned char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '+' || c == '-' || c == '/';
  });
}

std::optional<cctz::time_zone> load(const std::string& name) {
  cctz::time_zone zone;
  if (!looksLikeZoneName(name) || !cctz::load_time_zone(name, &zone)) return std::nullopt;
  return zone;
}

/// "/maker.example/20240101_1/Europe/Berlin" ends in the name of the zone, which has one to three parts.
std::optional<cctz::time_zone> loadAfterPath(const std::string& name) {
  std::size_t slash = name.size();
  std::optional<cctz::time_zone> longest;
  for (int parts = 0; parts < 3 && slash != 0; ++parts) {
    slash = name.rfind('/', slash - 1);
    if (slash == std::string::npos) break;
    if (auto zone = load(name.substr(slash + 1))) longest = zone;
  }
  return longest;
}

}  // namespace

EventZone EventZone::utc() {
  EventZone zone;
  zone.name_ = "UTC";
  zone.known_ = cctz::utc_time_zone();
  return zone;
}

std::optional<EventZone> EventZone::named(const std::string& name) {
  auto known = load(name);
  if (!known && name.starts_with('/')) known = loadAfterPath(name);
  if (!known) return std::nullopt;
  EventZone zone;
  zone.name_ = known->name();
  zone.known_ = *known;
  return zone;
}

std::optional<EventZone> EventZone::defined(const std::string& name, const std::string& definition) {
  OwnedComponent component(icalparser_parse_string(definition.c_str()));
  if (component == nullptr || icalcomponent_isa(component.get()) != ICAL_VTIMEZONE_COMPONENT) {
    return std::nullopt;
  }
  EventZone zone;
  zone.name_ = name;
  zone.definition_ = definition;
  zone.custom_ = std::make_shared<const DefinedZone>(component.get());
  return zone;
}

Seconds EventZone::toInstant(Seconds wall) const {
  if (custom_ == nullptr) {
    return known_.lookup(civilTime(wall)).pre.time_since_epoch().count() - kReferenceAfterUnixEpoch;
  }
  return wall - custom_->offsetAtWall(wall);
}

Seconds EventZone::toWall(Seconds instant) const {
  if (custom_ == nullptr) return wallSeconds(cctz::convert(unixTime(instant), known_));
  return instant + custom_->offsetAtInstant(instant);
}

}  // namespace phone
