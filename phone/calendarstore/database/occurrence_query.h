// Searching the calendar database: the occurrences in a range of time, and one event by its name.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "phone/calendarstore/database/calendar_database.h"
#include "phone/calendarstore/database/event_record.h"
#include "phone/calendarstore/database/occurrence_candidates.h"

namespace phone {

/// One occurrence of an event, with what a calendar shows of it.
struct EventOccurrence {
  /// The event's row, and the calendar's.
  std::int64_t event = 0;
  std::int64_t calendar = 0;
  std::string uid = {};
  std::optional<ReplacedRepetition> replaces = std::nullopt;
  std::string title = {};
  std::optional<std::string> location = std::nullopt;
  bool isAllDay = false;
  bool repeats = false;
  /// Instants. An all-day event begins at midnight where the phone is, and ends with the last second of its
  /// last day.
  Seconds start = 0;
  Seconds end = 0;
  /// The start as the database counts: of an event without a zone, a wall time.
  Seconds storedStart = 0;
  /// Of an event that changes all later repetitions of a series: the row of the series, and when the
  /// repetition that this is about would start, as the series counts. Else 0.
  std::int64_t series = 0;
  Seconds repetition = 0;
};

/// A search gives at most so many occurrences, the earliest, and stops when their titles and locations take
/// so many bytes: there are files with a rule for every second, and with titles of a megabyte.
inline constexpr std::size_t kMaxOccurrences = 5000;
inline constexpr std::size_t kMaxTextSize = 2'000'000;

struct FoundOccurrences {
  /// By start, then title.
  std::vector<EventOccurrence> occurrences;
  /// What was left out to keep within bounds, in words for people; empty as a rule.
  std::vector<std::string> omissions;
};

/// The occurrences in those calendars that overlap the range. No calendars: no occurrences. `phoneZone` is
/// where the phone is. Throws DatabaseError.
FoundOccurrences occurrencesInRange(CalendarDatabase& database, TimeRange range,
                                    const std::vector<std::int64_t>& calendars, const EventZone& phoneZone);

/// The first occurrence of the event in that row.
EventOccurrence firstOccurrence(CalendarDatabase& database, std::int64_t row, const EventZone& phoneZone);

/// The event with that identifier (see eventIdentifier()), as its first occurrence; none if there is none.
std::optional<EventOccurrence> findByIdentifier(CalendarDatabase& database, const std::string& identifier,
                                                const EventZone& phoneZone);

}  // namespace phone
