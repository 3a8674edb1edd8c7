// What the user types into the fields of an event editor.
#pragma once

#include <optional>
#include <string>

class EKEvent;
class EKEventStore;

namespace phone {

/// None leaves a field as it is.
struct EventFields {
  std::optional<std::string> title = {};
  std::optional<std::string> location = {};
  /// Seconds since 1 January 2001 UTC. A new start without an end moves the event.
  std::optional<double> start = {};
  std::optional<double> end = {};
  std::optional<bool> allDay = {};
  /// Name or identifier of one of the store's calendars, as calendarMeant() takes it.
  std::optional<std::string> calendar = {};
};

/// Changes the event, which is not saved by that. Throws std::runtime_error for a calendar that there is not,
/// a text that is not UTF-8, and an end before the start; the event is then unchanged.
void enterFields(EKEvent* event, EKEventStore* store, const EventFields& fields);

/// A new event before its user has entered anything: an hour from the next full hour on, in the default
/// calendar. Borrowed. Throws std::runtime_error when the calendar database cannot be used.
EKEvent* makeNewEvent(EKEventStore* store);

}  // namespace phone
