// A calendar store that answers what the test says and notes what it was asked, missing entries and odd
// identifiers included, which the phone's own store never gives. Its events go blank when their store dies.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace phone {

struct ScriptedCalendar {
  std::string identifier;
  std::optional<std::array<double, 3>> color = {{1, 0, 0}};
};

struct ScriptedEvent {
  std::optional<std::string> title = {};
  std::optional<double> start = 0;
  std::optional<double> end = start.value_or(0) + 3600;
  std::optional<std::string> location = {};
  bool isAllDay = false;
  /// Index into the store's calendars; beyond them: an event of no calendar.
  std::size_t calendar = 0;
  std::optional<std::string> identifier = "CAL:UID";
  std::optional<std::string> url = {};
};

/// What one search asked for: times in seconds since 1 January 2001 UTC, identifiers of calendars.
struct ScriptedQuery {
  double start;
  double end;
  std::vector<std::string> calendars;
};

struct ScriptedStore {
  std::vector<ScriptedCalendar> calendars = {{"RED"}};
  /// What every search finds, in this order; an entry without value is a missing one.
  std::vector<std::optional<ScriptedEvent>> events;
  std::vector<ScriptedQuery> queries;
  int connections = 0;
  /// How many events were still alive when their store died.
  int outlivingEvents = 0;
};

/// The one store of the process.
ScriptedStore& scriptedStore();

/// Registers EKEventStore and the classes of its answers.
void registerScriptedEventKit();

}  // namespace phone
