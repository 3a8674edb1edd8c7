// A recurrence rule: what it takes to keep one, and its occurrences.
#pragma once

#include <libical/ical.h>
#include <limits>
#include <optional>
#include <string>

#include "phone/calendarstore/recurrence/event_zone.h"
#include "phone/calendarstore/recurrence/recurrence_walk.h"

namespace phone {

/// A rule that names a larger number of occurrences than this counts as endless.
inline constexpr int kMaxCount = 20'000;

/// What it may cost to find the ends of all rules of a file that name a number of occurrences: about a
/// second.
inline constexpr std::int64_t kMaxStepsToEnds = 20'000'000;

/// The last occurrence of a rule without end.
inline constexpr Seconds kEndless = std::numeric_limits<std::int64_t>::max() / 4;

/// What a rule takes from its event.
struct RuleStart {
  /// Wall time.
  Seconds wall;
  /// Whether the event lasts whole days; times of day in its rule mean nothing then.
  bool isAllDay;
  /// The event's zone, or the phone's if it has none; borrowed.
  const EventZone& zone;
};

/// A rule in the form in which it is stored: its end, if any, is a wall time of the event's own zone, never
/// a number of occurrences. So its occurrences can be computed from any day on.
class RecurrenceRule {
 public:
  /// From a rule of a calendar file. None when the rule never occurs, except perhaps at the start itself,
  /// which every event has anyway. The end of a rule that names a number of occurrences is looked for at the
  /// cost of `toEnds`; once that is spent, such rules count as endless.
  static std::optional<RecurrenceRule> fromFile(const icalrecurrencetype& rule, const RuleStart& start,
                                                WalkBudget& toEnds);
  /// From text(). A text that is no rule gives one that never occurs.
  static RecurrenceRule fromStored(const std::string& text, Seconds wallStart);

  std::string text() const;
  /// No occurrence starts later (wall time); kEndless if there is no such time.
  Seconds lastStart() const;
  /// The rule up to, but without, the occurrences at `wall` and later.
  RecurrenceRule endingBefore(Seconds wall) const;
  /// The same rule for an event that starts `shift` seconds later.
  RecurrenceRule shifted(Seconds shift) const;

  /// Hands on the wall times within [from, to] at which occurrences start, in order, until `use` says false
  /// or the budget is spent, and gives false then.
  bool forEachStart(Seconds from, Seconds to, WalkBudget& budget, const UseStart& use) const;

 private:
  RecurrenceRule(const icalrecurrencetype& rule, Seconds wallStart);

  bool countsInForeignCalendar() const { return !calendar_.empty(); }
  icalrecurrencetype parsed() const;
  bool endCounted(WalkBudget& toEnds);
  void endAt(Seconds wall);

  /// Without the calendar's name, which libical leaves to the owner of the rule to free.
  icalrecurrencetype rule_;
  std::string calendar_;
  Seconds wallStart_;
};

}  // namespace phone
