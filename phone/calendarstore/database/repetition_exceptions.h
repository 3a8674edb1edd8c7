// Which repetitions of a series do not take place, or take place otherwise.
#pragma once

#include <vector>

#include "phone/calendarstore/database/calendar_database.h"
#include "phone/calendarstore/database/event_record.h"
#include "phone/calendarstore/recurrence/recurrence_rule.h"

namespace phone {

/// What the database says of one series, as long as nobody changes it.
class RepetitionExceptions {
 public:
  /// `series` is the row of an event that repeats.
  RepetitionExceptions(CalendarDatabase& database, std::int64_t series);

  /// Whether the series leaves out the repetition that would start then, as the series counts: by name, by a
  /// rule, or because another event stands in for it. With a spent budget, rules are not asked.
  bool leaveOut(Seconds storedStart, WalkBudget& budget) const;
  /// Whether another event changes that repetition along with earlier ones.
  bool isChangedAlong(Seconds storedStart) const;

 private:
  void addNames(Statement& query);
  bool isNamed(const RepetitionName& name) const;
  bool isRuledOut(Seconds wallStart, WalkBudget& budget) const;
  Seconds wallOf(Seconds stored) const { return zone_ == nullptr ? stored : zone_->toWall(stored); }

  const EventZone* zone_ = nullptr;
  /// A wall time.
  Seconds changedFrom_ = kEndless;
  std::vector<RepetitionName> names_;
  std::vector<RecurrenceRule> rules_;
};

}  // namespace phone
