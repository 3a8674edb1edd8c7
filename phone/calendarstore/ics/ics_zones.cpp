#include "phone/calendarstore/ics/ics_zones.h"

#include "phone/calendarstore/ics/windows_zone.h"
#include "phone/calendarstore/memory_check.h"
#include "phone/calendarstore/recurrence/ical_owned.h"

namespace phone {

void IcsZones::define(const IcsComponent& component) {
  const MemoryCheck memory;
  const OwnedComponent zone(icalparser_parse_string(component.text.c_str()));
  memory.require();
  if (zone == nullptr) return;
  std::string name;
  Definition definition{{}, component.text};
  forEachProperty(zone.get(), ICAL_ANY_PROPERTY, [&](icalproperty* property) {
    if (icalproperty_isa(property) == ICAL_TZID_PROPERTY) name = icalproperty_get_tzid(property);
    const char* const custom = icalproperty_get_x_name(property);
    if (custom != nullptr && std::string_view(custom) == "X-LIC-LOCATION") {
      definition.location = icalproperty_get_x(property);
    }
  });
  if (name.empty()) return;
  // Events before the definition may have asked for the name in vain.
  resolved_.erase(name);
  definitions_.insert_or_assign(name, std::move(definition));
}

void IcsZones::endDefinitions() {
  allDefined_ = true;
  std::erase_if(resolved_, [](const auto& entry) { return !entry.second; });
}

std::optional<EventZone> IcsZones::resolve(const std::string& name) const {
  if (auto known = EventZone::named(name)) return known;
  if (const auto defined = definitions_.find(name); defined != definitions_.end()) {
    if (auto known = EventZone::named(defined->second.location)) return known;
    if (auto custom = EventZone::defined(name, defined->second.text)) return custom;
  }
  return allDefined_ ? zoneNamedByWindows(name) : std::nullopt;
}

const EventZone* IcsZones::find(const std::string& name) {
  auto known = resolved_.find(name);
  if (known == resolved_.end()) known = resolved_.emplace(name, resolve(name)).first;
  return known->second ? &*known->second : nullptr;
}

}  // namespace phone
