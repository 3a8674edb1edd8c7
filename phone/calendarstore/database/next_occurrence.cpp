#include "phone/calendarstore/database/next_occurrence.h"

#include <algorithm>

#include "phone/calendarstore/database/event_table.h"
#include "phone/calendarstore/database/series_length.h"
#include "phone/calendarstore/recurrence/recurrence_rule.h"

namespace phone {

namespace {

/// Wall times and instants differ by less; so do the bounds of a search and what is looked for.
constexpr Seconds kSlack = 2 * kSecondsPerDay;

/// Nothing of the series takes place later.
Seconds lastEnd(CalendarDatabase& database, const EventRecord& series) {
  Seconds last = series.end;
  for (const AddedDate& date : series.added) last = std::max(last, date.end);
  for (const std::string& rule : series.rules) {
    const Seconds lastStart = RecurrenceRule::fromStored(rule, series.wallStart()).lastStart();
    last = std::max(last, lastStart + SeriesLength::of(series).longest());
  }
  for (const std::int64_t row : replacingEvents(database, series.calendar, series.uid)) {
    last = std::max(last, readEvent(database, row).end);
  }
  return std::min(last, kLastWallTime) + kSlack;
}

class OccurrenceSearch {
 public:
  OccurrenceSearch(CalendarDatabase& database, const EventRecord& series, const EventZone& phoneZone)
      : database_(database), series_(series), phoneZone_(phoneZone), lastEnd_(lastEnd(database, series)) {}

  /// Each search looks twice as far as the one before: most events repeat within days, some after years.
  std::optional<EventOccurrence> firstSince(Seconds now) const {
    Seconds length = kSecondsPerDay;
    for (Seconds from = now; from <= lastEnd_; from += length, length *= 2) {
      const auto found = within({from, from + length});
      if (!found.empty()) return found.front();
    }
    return std::nullopt;
  }

  /// A search gives an event's earliest occurrences when there are too many, so of one that repeats by
  /// minutes or seconds this may be a late one instead of the last.
  std::optional<EventOccurrence> lastBefore(Seconds now) const {
    Seconds length = kSecondsPerDay;
    for (Seconds to = std::min(now, lastEnd_); to >= series_.start - kSlack; to -= length, length *= 2) {
      const auto found = within({to - length, to});
      if (!found.empty()) return found.back();
    }
    return std::nullopt;
  }

 private:
  std::vector<EventOccurrence> within(TimeRange range) const {
    auto found = occurrencesInRange(database_, range, {series_.calendar}, phoneZone_).occurrences;
    std::erase_if(found, [this](const EventOccurrence& each) { return each.uid != series_.uid; });
    return found;
  }

  CalendarDatabase& database_;
  const EventRecord& series_;
  const EventZone& phoneZone_;
  Seconds lastEnd_;
};

}  // namespace

EventOccurrence nextOccurrence(CalendarDatabase& database, std::int64_t row, Seconds now,
                               const EventZone& phoneZone) {
  const EventRecord event = readEvent(database, row);
  if (event.repeats() && !event.replaces) {
    const OccurrenceSearch search(database, event, phoneZone);
    if (const auto next = search.firstSince(now)) return *next;
    if (const auto last = search.lastBefore(now)) return *last;
  }
  return firstOccurrence(database, row, phoneZone);
}

}  // namespace phone
