// An event as the database keeps it: one row of its own, with the rules and dates of its repetitions.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "phone/calendarstore/recurrence/calendar_time.h"
#include "phone/calendarstore/recurrence/event_zone.h"

namespace phone {

/// How one repetition of an event is named: by the instant at which it would start, by the wall time (events
/// without a zone), or by the day alone.
enum class RepetitionKind : int { kInstant = 1, kWallTime = 2, kDay = 3 };

struct RepetitionName {
  RepetitionKind kind;
  /// Seconds; of a day, its midnight as a wall time.
  Seconds value;

  bool operator==(const RepetitionName&) const = default;
  auto operator<=>(const RepetitionName&) const = default;
};

/// Which repetition of an event another one stands in for, and whether it changes all later ones as well:
/// they move with it, and are as long and called as it is.
struct ReplacedRepetition : RepetitionName {
  bool andLater = false;

  bool operator==(const ReplacedRepetition&) const = default;
};

/// A rule that leaves repetitions out instead of making them. Its own start, a wall time, stays when the
/// event that it belongs to is taken apart.
struct ExceptionRule {
  Seconds wallStart;
  /// As RecurrenceRule::text() gives it.
  std::string rule;

  auto operator<=>(const ExceptionRule&) const = default;
};

/// A repetition that is not made by a rule.
struct AddedDate {
  Seconds start;
  Seconds end;

  auto operator<=>(const AddedDate&) const = default;
};

/// Times are instants, except for events without a zone (all-day ones among them): theirs are wall times,
/// valid wherever the phone is. The end of an all-day event is the midnight after its last day.
struct EventRecord {
  std::int64_t calendar = 0;
  std::string uid;
  /// Which repetition of the event with the same uid this one stands in for; none: it stands for itself.
  std::optional<ReplacedRepetition> replaces = std::nullopt;
  std::string title = {};
  /// None: the event has no location.
  std::optional<std::string> location = std::nullopt;
  bool isAllDay = false;
  /// None: the event's times are wall times.
  std::optional<EventZone> zone = std::nullopt;
  Seconds start = 0;
  Seconds end = 0;
  /// How many days of the length of each occurrence are counted on the calendar rather than on the clock;
  /// only of events with rules and a zone.
  std::int64_t calendarDays = 0;

  /// Recurrence rules as RecurrenceRule::text() gives them.
  std::vector<std::string> rules = {};
  std::vector<RepetitionName> excluded = {};
  std::vector<ExceptionRule> exceptionRules = {};
  std::vector<AddedDate> added = {};

  /// Called off. The row stays, so that a series still knows which of its repetitions do not take place, but
  /// it has no occurrences.
  bool isCancelled = false;
  /// Whether the event came from a file; the others were made on the phone.
  bool isImported = false;
  /// How often and when the event was changed, as far as known; tells which of two versions is the newer one.
  std::int64_t revision = 0;
  Seconds modified = 0;

  bool repeats() const {
    return !rules.empty() || !added.empty() || !excluded.empty() || !exceptionRules.empty();
  }
  /// Whether it changes a repetition of another event and all later ones.
  bool changesLater() const { return replaces && replaces->andLater; }
  Seconds duration() const { return end - start; }
  Seconds wallStart() const { return toWall(start); }

  /// From a time as this event counts to a wall time where it takes place, and back.
  Seconds toWall(Seconds stored) const { return zone ? zone->toWall(stored) : stored; }
  Seconds toStored(Seconds wall) const { return zone ? zone->toInstant(wall) : wall; }
  /// The wall time of a repetition of this event; of one that is named by its day, the midnight.
  Seconds wallOf(const RepetitionName& name) const {
    return name.kind == RepetitionKind::kInstant ? toWall(name.value) : name.value;
  }
};

/// True when both say the same, leaving versions and origin aside.
bool sameContent(const EventRecord& left, const EventRecord& right);

}  // namespace phone
