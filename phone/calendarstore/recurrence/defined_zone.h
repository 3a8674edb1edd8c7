// A time zone that a calendar file defines: when its clocks change, and from what to what. libical's own
// reading of one takes milliseconds, and a file can define thousands.
#pragma once

#include <algorithm>
#include <libical/ical.h>
#include <optional>
#include <vector>

#include "phone/calendarstore/recurrence/calendar_time.h"
#include "phone/calendarstore/recurrence/recurrence_walk.h"

namespace phone {

class DefinedZone {
 public:
  /// From a VTIMEZONE; what it says that is no change of clocks is passed over.
  explicit DefinedZone(icalcomponent* definition);

  /// What a clock is ahead of UTC, in seconds.
  Seconds offsetAtInstant(Seconds instant) const;
  /// The same by what the clock shows. A time that a change skips, and one that comes twice, belong to the
  /// offset before the change.
  Seconds offsetAtWall(Seconds wall) const;

 private:
  /// What a change leads from, and to.
  struct Offsets {
    Seconds before;
    Seconds after;
  };
  struct Change {
    Seconds instant;
    Offsets offsets;

    Seconds wall() const { return instant + std::max(offsets.before, offsets.after); }
  };
  /// A rule of changes, in wall times before the change.
  struct Rule {
    RecurrenceWalk walk;
    Seconds last;
    Offsets offsets;
  };

  void add(icalcomponent* observance, WalkBudget& toList);
  void addRule(const icalrecurrencetype& rule, Seconds start, Offsets offsets, WalkBudget& toList);
  void addChange(Seconds onset, Offsets offsets);
  std::optional<Change> latestOfRules(Seconds instant) const;
  template <typename TimeOf>
  Seconds offsetAt(Seconds time, TimeOf timeOf) const;

  /// In order, up to a year that calendars hardly reach.
  std::vector<Change> changes_;
  /// Those that still hold then.
  std::vector<Rule> rules_;
};

}  // namespace phone
