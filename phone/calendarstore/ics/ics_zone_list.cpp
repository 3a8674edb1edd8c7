#include "phone/calendarstore/ics/ics_zone_list.h"

#include <algorithm>
#include <sstream>

#include "phone/calendarstore/ics/ics_text.h"
#include "phone/calendarstore/recurrence/ical_owned.h"

namespace phone {

namespace {

/// The definition of a zone of the system; empty when the library has none of that name.
std::string systemDefinition(const std::string& name) {
  icaltimezone* const zone = icaltimezone_get_builtin_timezone(name.c_str());
  icalcomponent* const definition = zone == nullptr ? nullptr : icaltimezone_get_component(zone);
  if (definition == nullptr) return "";
  const OwnedComponent copy(icalcomponent_new_clone(definition));
  // The library puts its own mark before the name.
  icalproperty* const named = icalcomponent_get_first_property(copy.get(), ICAL_TZID_PROPERTY);
  if (named != nullptr) icalproperty_set_tzid(named, name.c_str());
  return OwnedIcalText(icalcomponent_as_ical_string_r(copy.get())).get();
}

/// The definition that came from a file, as it stood there, with `suffix` behind its name.
std::string ownDefinition(const std::string& definition, const std::string& suffix) {
  std::istringstream lines(definition);
  std::string text;
  for (std::string line; std::getline(lines, line);) {
    while (line.ends_with('\r')) line.pop_back();
    if (line.starts_with("TZID")) line += suffix;
    text += foldedLine(line);
  }
  return text;
}

}  // namespace

const std::string& IcsZoneList::nameOf(const EventZone& zone) {
  const auto [place, isNew] = names_.try_emplace({zone.name(), zone.definition()});
  if (!isNew) return place->second;
  std::string name = zone.name();
  const auto isTaken = [&] {
    return std::any_of(names_.begin(), names_.end(), [&](const auto& each) { return each.second == name; });
  };
  for (int number = 2; isTaken(); ++number) name = zone.name() + " " + std::to_string(number);
  return place->second = name;
}

std::string IcsZoneList::definitions() const {
  std::string text;
  for (const auto& [zone, name] : names_) {
    text += zone.second.empty() ? systemDefinition(zone.first)
                                : ownDefinition(zone.second, name.substr(zone.first.size()));
  }
  return text;
}

}  // namespace phone
