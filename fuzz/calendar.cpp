// A calendar file from import to search. What holds for every file: a second import finds nothing new; what a
// search gives is in order and inside the range; two halves of a range give what the whole gives; an event is
// found by its identifier.
#include <algorithm>
#include <iterator>
#include <tuple>
#include <utility>

#include "fuzz/support/target.h"
#include "phone/calendarstore/database/identifiers.h"
#include "phone/calendarstore/database/occurrence_query.h"
#include "phone/calendarstore/ics/calendar_import.h"
#include "tests/foundation/temporary_folder.h"

namespace phone::fuzz {

namespace {

using Occurrences = std::vector<EventOccurrence>;

constexpr Seconds kDay = kSecondsPerDay;
// Around so many different starts of events there are searches.
constexpr std::size_t kMaxStarts = 4;

std::string show(const EventOccurrence& event) {
  return "event " + std::to_string(event.event) + " \"" + event.title + "\" from " +
         std::to_string(event.start) + " to " + std::to_string(event.end);
}

std::string show(TimeRange range) {
  return "[" + std::to_string(range.start) + ", " + std::to_string(range.end) + ")";
}

auto orderOf(const EventOccurrence& event) {
  return std::tie(event.start, event.title, event.calendar, event.uid, event.event, event.end);
}

bool isBefore(const EventOccurrence& left, const EventOccurrence& right) {
  return orderOf(left) < orderOf(right);
}

bool isSame(const EventOccurrence& left, const EventOccurrence& right) {
  return orderOf(left) == orderOf(right);
}

class CalendarTarget : public Target {
 public:
  void tryInput(std::string_view bytes) override {
    const std::filesystem::path file = folder_.path() / "calendar.ics";
    const std::filesystem::path databaseFile = folder_.path() / "Calendar.sqlitedb";
    writeBytes(file, bytes);
    std::filesystem::remove(databaseFile);
    CalendarDatabase database(databaseFile, OpenMode::kCreate);
    try {
      const ImportResult first = importCalendars(database, {file});
      checkSecondImport(first, importCalendars(database, {file}));
    } catch (const IcsError&) {
      return;
    }
    checkSearches(database);
  }

 private:
  static void checkSecondImport(const ImportResult& first, const ImportResult& second) {
    require(first.calendars.size() == second.calendars.size(), "a second import fills the same calendars");
    for (std::size_t i = 0; i < first.calendars.size(); ++i) {
      const ImportedCalendar& once = first.calendars[i];
      const ImportedCalendar& again = second.calendars[i];
      require(again.added + again.removed == 0, "a second import of the same file adds nothing");
      // In a new database only an event that the file has twice is updated; it then is so each time.
      const bool hasDoubles = once.updated + once.older > 0;
      require(hasDoubles || again.updated + again.older == 0, "a second import finds every event unchanged");
    }
  }

  void checkSearches(CalendarDatabase& database) {
    std::vector<std::int64_t> calendars;
    for (const CalendarRecord& calendar : database.calendars()) calendars.push_back(calendar.id);
    for (const Seconds start : startsIn(database)) {
      checkRange(database, calendars, {start - 2 * kDay, start + 5 * kDay}, start);
      checkRange(database, calendars, {start - 40 * kDay, start + 400 * kDay}, start + 100 * kDay + 1);
      checkRange(database, calendars, {start + 3000 * kDay, start + 3030 * kDay}, start + 3007 * kDay);
    }
  }

  static std::vector<Seconds> startsIn(CalendarDatabase& database) {
    Statement& query = database.prepared("SELECT DISTINCT start FROM event ORDER BY id LIMIT ?1");
    const StatementScope scope(query);
    query.bind(1, static_cast<std::int64_t>(kMaxStarts));
    std::vector<Seconds> starts;
    while (query.step()) starts.push_back(query.integer(0));
    return starts;
  }

  void checkRange(CalendarDatabase& database, const std::vector<std::int64_t>& calendars, TimeRange range,
                  Seconds cut) {
    const auto search = [&](TimeRange part) {
      FoundOccurrences found = occurrencesInRange(database, part, calendars, phoneZone_);
      checkOrderAndPlace(found.occurrences, part);
      return found;
    };
    const FoundOccurrences whole = search(range);
    checkIdentifiers(database, whole.occurrences);
    FoundOccurrences halves = search({range.start, cut});
    const FoundOccurrences later = search({cut, range.end});
    // What one search left out, the others may have found.
    for (const FoundOccurrences* found : {&whole, static_cast<const FoundOccurrences*>(&halves), &later}) {
      if (!found->omissions.empty()) return;
    }
    std::ranges::copy(later.occurrences, std::back_inserter(halves.occurrences));
    expectSame(whole.occurrences, std::move(halves.occurrences), range, cut);
  }

  static void checkOrderAndPlace(const Occurrences& found, TimeRange range) {
    for (std::size_t i = 0; i < found.size(); ++i) {
      const EventOccurrence& event = found[i];
      require(
          i == 0 || std::tie(found[i - 1].start, found[i - 1].title) <= std::tie(event.start, event.title),
          "occurrences come by start, then title: " + show(event));
      require(overlaps(range, event.start, event.isAllDay ? event.end + 1 : event.end),
              show(event) + " overlaps the range " + show(range));
    }
  }

  static void expectSame(Occurrences whole, Occurrences halves, TimeRange range, Seconds cut) {
    std::ranges::sort(whole, isBefore);
    // What lies across the cut is in both halves.
    std::ranges::sort(halves, isBefore);
    halves.erase(std::unique(halves.begin(), halves.end(), isSame), halves.end());
    Occurrences differing;
    std::ranges::set_symmetric_difference(whole, halves, std::back_inserter(differing), isBefore);
    require(differing.empty(), "the range " + show(range) + " gives what it gives cut at " +
                                   std::to_string(cut) + ", but for " +
                                   (differing.empty() ? "" : show(differing.front())));
  }

  void checkIdentifiers(CalendarDatabase& database, const Occurrences& found) const {
    constexpr std::size_t kEnough = 8;
    const auto calendars = database.calendars();
    for (std::size_t i = 0; i < std::min(found.size(), kEnough); ++i) {
      const EventOccurrence& event = found[i];
      const auto calendar = std::ranges::find(calendars, event.calendar, &CalendarRecord::id);
      require(calendar != calendars.end(), show(event) + " is in a calendar");
      const std::string identifier = eventIdentifier(calendar->identifier, event.uid, event.replaces);
      const auto same = findByIdentifier(database, identifier, phoneZone_);
      require(same && same->event == event.event, show(event) + " is found by " + identifier);
    }
  }

  TemporaryFolder folder_;
  EventZone phoneZone_ = EventZone::named("Europe/Berlin").value();
};

}  // namespace

std::unique_ptr<Target> makeTarget() { return std::make_unique<CalendarTarget>(); }

}  // namespace phone::fuzz
