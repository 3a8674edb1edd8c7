// The walk through the occurrences of a rule in the Gregorian calendar, from any day on: first the days, then
// the times of day, then the positions in the set that a period has. Every rule takes this one way. libical's
// own iterator is not used for them: it puts weeks that do not begin on Monday and weeks around New Year on
// wrong days, leaves positions out of weekly and daily rules, gives different answers from different starts,
// and takes seconds to find that a rule never fits.
#pragma once

#include <functional>
#include <libical/ical.h>
#include <vector>

#include "phone/calendarstore/recurrence/day_filter.h"
#include "phone/calendarstore/recurrence/times_of_day.h"
#include "phone/calendarstore/recurrence/walk_budget.h"

namespace phone {

/// Takes the start of an occurrence, a wall time; false ends the walk.
using UseStart = std::function<bool(Seconds)>;

class RecurrenceWalk {
 public:
  /// COUNT and UNTIL are not looked at. INTERVAL is 1 at least, as libical gives it.
  RecurrenceWalk(const icalrecurrencetype& rule, Seconds wallStart);

  /// Hands on the occurrences that start within [from, to] (wall times), in order, until the budget is spent.
  /// The start itself is among them only if the rule says so. False when the walk ended early.
  bool forEach(Seconds from, Seconds to, WalkBudget& budget, const UseStart& use) const;

 private:
  /// What is asked for, and from whom.
  struct Request {
    Seconds from;
    Seconds to;
    WalkBudget& budget;
    const UseStart& use;
  };

  bool repeatsWithinDay() const { return unit_ < kSecondsPerDay; }
  template <typename UseDay>
  bool forEachDay(DayRange range, WalkBudget& budget, UseDay use) const;
  bool useTimesOn(std::int64_t day, const Request& request) const;
  bool useStepsOn(std::int64_t day, const Request& request) const;
  bool useWithinStep(Seconds step, const Request& request) const;
  bool usePositions(const Request& request) const;
  std::vector<std::int64_t> positionsIn(std::int64_t setSize) const;

  DayFilter days_;
  Seconds start_;
  /// Rules within a day step through hours, minutes or seconds; others through whole days.
  Seconds unit_;
  Seconds step_;
  /// The times of day at which occurrences start; of a rule within a day, its steps.
  TimesOfDay times_;
  /// The times within a step.
  TimesOfDay offsets_;
  std::vector<std::int64_t> positions_;
};

}  // namespace phone
