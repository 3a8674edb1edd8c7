// A recurrence rule: what it takes to keep one, and its occurrences.
#pragma once

#include <libical/ical.h>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "phone/eventkit/event_zone.h"

namespace phone {

/// An event gives at most so many occurrences to one query; a rule for every second would give millions.
inline constexpr std::size_t kMostOccurrences = 1000;

/// A rule that names a larger number of occurrences than this counts as endless.
inline constexpr int kLargestCount = 20'000;

/// The last occurrence of a rule without end.
inline constexpr Seconds kEndless = std::numeric_limits<std::int64_t>::max() / 4;

/// A rule in the form in which it is stored: its end, if any, is a wall time of the event's own zone, never
/// a number of occurrences. So its occurrences can be computed from any day on.
class RecurrenceRule {
 public:
  /// From a rule of a calendar file. `zone` is the zone of the event, none if it has none. None when the rule
  /// never occurs, except perhaps at the start itself, which every event has anyway.
  static std::optional<RecurrenceRule> fromFile(icalrecurrencetype rule, Seconds wallStart,
                                                const EventZone* zone);
  /// From text(). A text that is no rule gives one that never occurs.
  static RecurrenceRule fromStored(const std::string& text, Seconds wallStart);

  std::string text() const;
  /// No occurrence starts later (wall time); kEndless if there is no such time.
  Seconds lastStart() const;
  /// The rule up to, but without, the occurrences at `wall` and later.
  RecurrenceRule endingBefore(Seconds wall) const;
  /// The same rule for an event that starts `shift` seconds later.
  RecurrenceRule shifted(Seconds shift) const;

  /// Appends the wall times within [from, to] at which occurrences start, in order, kMostOccurrences at most.
  void appendStarts(Seconds from, Seconds to, std::vector<Seconds>& starts) const;

 private:
  RecurrenceRule(const icalrecurrencetype& rule, Seconds wallStart) : rule_(rule), wallStart_(wallStart) {}

  bool endCounted();
  bool isOnceADay() const;

  icalrecurrencetype rule_;
  Seconds wallStart_;
};

}  // namespace phone
