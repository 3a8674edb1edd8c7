// The calendars that an import fills, and what it did to each.
#pragma once

#include <map>
#include <string>
#include <unordered_set>
#include <vector>

#include "phone/calendarstore/database/calendar_database.h"
#include "phone/calendarstore/database/event_record.h"
#include "phone/calendarstore/ics/calendar_import.h"

namespace phone {

/// A calendar that gets events, and the rows of those that it got if the others are to be removed.
struct ImportTarget {
  ImportedCalendar imported;
  std::unordered_set<std::int64_t> seen;
};

class ImportTargets {
 public:
  /// `removesMissing` says whether removeMissing() will be asked for, which has to know every row.
  ImportTargets(CalendarDatabase& database, bool removesMissing)
      : database_(database), removesMissing_(removesMissing) {}

  /// The calendar of that name (borrowed), added to the database if it has none; an empty colour text, or one
  /// that is no colour, leaves the colour to the database.
  ImportTarget& named(const std::string& name, const std::string& color);

  /// Brings the event into the target's calendar.
  void merge(ImportTarget& target, EventRecord event);

  /// Removes the events that came from a file once and were not among those of this import.
  void removeMissing();

  /// How many events were brought in so far.
  std::size_t events() const { return events_; }
  /// In the order in which they came up.
  std::vector<ImportedCalendar> results() const;

 private:
  CalendarDatabase& database_;
  bool removesMissing_;
  std::map<std::string, ImportTarget> targets_;
  std::vector<ImportTarget*> order_;
  std::size_t events_ = 0;
};

}  // namespace phone
