#include "phone/calendarstore/database/occurrence_query.h"

#include <algorithm>
#include <set>
#include <sstream>
#include <tuple>
#include <unordered_map>

#include "phone/calendarstore/database/event_table.h"
#include "phone/calendarstore/database/identifiers.h"
#include "phone/calendarstore/database/repetition_exceptions.h"

namespace phone {

namespace {

/// What all rules that leave repetitions out may cost together: some tenths of a second.
constexpr std::int64_t kMaxExceptionSteps = 200'000;

/// The event's row as an occurrence, its times still to be set by placeAt(); none if the row is gone.
std::optional<EventOccurrence> readRow(CalendarDatabase& database, std::int64_t row, const EventZone*& zone) {
  Statement& query = database.prepared(
      "SELECT calendar, uid, replaces_kind, replaces_value, title, location, all_day, repeats, zone, start, "
      "end "
      "FROM event WHERE id = ?1");
  const StatementScope scope(query);
  if (!query.bind(1, row).step()) return std::nullopt;
  EventOccurrence event{.event = row, .calendar = query.integer(0), .uid = query.text(1)};
  event.replaces = replacedRepetition(query.integer(2), query.integer(3));
  event.title = query.text(4);
  if (!query.isNull(5)) event.location = query.text(5);
  event.isAllDay = query.integer(6) != 0;
  event.repeats = query.integer(7) != 0;
  zone = database.zone(query.integer(8));
  event.start = query.integer(9);
  event.end = query.integer(10);
  return event;
}

/// Sets the times of an occurrence from those of the database.
void placeAt(EventOccurrence& event, Seconds storedStart, Seconds storedEnd, const EventZone* zone,
             const EventZone& phoneZone) {
  event.storedStart = storedStart;
  event.start = zone == nullptr ? phoneZone.toInstant(storedStart) : storedStart;
  event.end = zone == nullptr ? phoneZone.toInstant(storedEnd) : storedEnd;
  if (event.isAllDay) event.end = phoneZone.toInstant(storedEnd - 1);
}

/// The series whose repetition the event changes along with all later ones, and where it has that repetition.
void findSeries(CalendarDatabase& database, EventOccurrence& event) {
  Statement& query = database.prepared(
      "SELECT id, zone FROM event WHERE calendar = ?1 AND uid = ?2 AND replaces_kind = 0 AND repeats = 1");
  const StatementScope scope(query);
  if (!query.bind(1, event.calendar).bind(2, event.uid).step()) return;
  const EventZone* const zone = database.zone(query.integer(1));
  const bool isWallTime = event.replaces->kind != RepetitionKind::kInstant && zone != nullptr;
  event.series = query.integer(0);
  event.repetition = isWallTime ? zone->toInstant(event.replaces->value) : event.replaces->value;
}

/// A search: judges what the indexes and rules propose, and keeps the earliest.
class Search {
 public:
  Search(CalendarDatabase& database, TimeRange range, const std::vector<std::int64_t>& calendars,
         const EventZone& phoneZone)
      : database_(database), range_(range), calendars_(calendars), phoneZone_(phoneZone) {}

  FoundOccurrences run() {
    const CandidateOmissions omitted =
        collectCandidates(database_, range_, phoneZone_,
                          [this](const OccurrenceCandidate& candidate) { return judge(candidate); });
    if (omitted.cutRules > 0) {
      leaveOut(std::to_string(omitted.cutRules) +
               (omitted.cutRules == 1 ? " rule repeats" : " rules repeat") + " more than " +
               std::to_string(kMaxOccurrencesOfRule) +
               " times in the time that is searched; later occurrences are left out");
    }
    if (omitted.isBudgetSpent || exceptionBudget_.isSpent()) {
      leaveOut("the rules of some events take too long to follow; some of their occurrences are left out");
    }
    if (isFull_) {
      leaveOut("there are more than " + std::to_string(kMaxOccurrences) + " events; those after " +
               showTime(kept_.rbegin()->start) + " are left out");
    }
    takeKept();
    return std::move(found_);
  }

 private:
  struct KnownEvent {
    std::optional<EventOccurrence> event;
    const EventZone* zone = nullptr;
  };

  struct Kept {
    Seconds start;
    std::int64_t event;
    Seconds storedStart;
    Seconds storedEnd;
    std::int64_t series;
    Seconds repetition;

    /// The same repetition can be named twice: as the start and by the rule, by two rules, by a rule and a
    /// date.
    bool operator<(const Kept& other) const {
      return std::tie(start, event, storedStart) < std::tie(other.start, other.event, other.storedStart);
    }
  };

  KnownEvent& known(std::int64_t row) {
    const auto [place, isNew] = events_.try_emplace(row);
    KnownEvent& known = place->second;
    if (!isNew) return known;
    known.event = readRow(database_, row, known.zone);
    if (!known.event) return known;
    if (std::find(calendars_.begin(), calendars_.end(), known.event->calendar) == calendars_.end()) {
      known.event.reset();
    }
    return known;
  }

  RepetitionExceptions& exceptionsOf(std::int64_t series) {
    return exceptions_.try_emplace(series, database_, series).first->second;
  }

  /// Whether the candidate does not take place as the series has it.
  bool isLeftOut(const EventOccurrence& event, const OccurrenceCandidate& candidate) {
    if (candidate.series != 0) {
      return exceptionsOf(candidate.series).leaveOut(candidate.repetition, exceptionBudget_);
    }
    if (!event.repeats) return false;
    const RepetitionExceptions& exceptions = exceptionsOf(candidate.event);
    return exceptions.isChangedAlong(candidate.start) ||
           exceptions.leaveOut(candidate.start, exceptionBudget_);
  }

  Verdict judge(const OccurrenceCandidate& candidate) {
    KnownEvent& of = known(candidate.event);
    if (!of.event) return Verdict::kUnwantedEvent;
    EventOccurrence& event = *of.event;
    placeAt(event, candidate.start, candidate.end, of.zone, phoneZone_);
    if (!overlaps(range_, event.start, event.isAllDay ? event.end + 1 : event.end)) {
      return Verdict::kPassedOver;
    }
    if (kept_.size() == kMaxOccurrences && event.start > kept_.rbegin()->start) {
      isFull_ = true;
      return Verdict::kTooLate;
    }
    if (isLeftOut(event, candidate)) return Verdict::kPassedOver;
    kept_.insert({event.start, candidate.event, candidate.start, candidate.end, candidate.series,
                  candidate.repetition});
    if (kept_.size() > kMaxOccurrences) {
      kept_.erase(std::prev(kept_.end()));
      isFull_ = true;
    }
    return Verdict::kTaken;
  }

  void takeKept() {
    std::size_t textSize = 0;
    for (const Kept& kept : kept_) {
      KnownEvent& of = events_.at(kept.event);
      placeAt(*of.event, kept.storedStart, kept.storedEnd, of.zone, phoneZone_);
      textSize += of.event->title.size() + of.event->location.value_or("").size();
      if (textSize > kMaxTextSize && !found_.occurrences.empty()) {
        leaveOut("the titles are too long for all events; those from " + showTime(kept.start) +
                 " on are left out");
        break;
      }
      of.event->series = kept.series;
      of.event->repetition = kept.repetition;
      found_.occurrences.push_back(*of.event);
    }
    std::sort(found_.occurrences.begin(), found_.occurrences.end(),
              [](const EventOccurrence& left, const EventOccurrence& right) {
                return std::tie(left.start, left.title, left.calendar, left.uid) <
                       std::tie(right.start, right.title, right.calendar, right.uid);
              });
  }

  void leaveOut(std::string text) { found_.omissions.push_back(std::move(text)); }

  std::string showTime(Seconds instant) const {
    std::ostringstream text;
    text << civilTime(phoneZone_.toWall(instant));
    return text.str();
  }

  CalendarDatabase& database_;
  TimeRange range_;
  const std::vector<std::int64_t>& calendars_;
  const EventZone& phoneZone_;
  std::unordered_map<std::int64_t, KnownEvent> events_;
  std::unordered_map<std::int64_t, RepetitionExceptions> exceptions_;
  WalkBudget exceptionBudget_{kMaxExceptionSteps};
  std::set<Kept> kept_;
  bool isFull_ = false;
  FoundOccurrences found_;
};

}  // namespace

FoundOccurrences occurrencesInRange(CalendarDatabase& database, TimeRange range,
                                    const std::vector<std::int64_t>& calendars, const EventZone& phoneZone) {
  if (calendars.empty()) return {};
  return Search(database, range, calendars, phoneZone).run();
}

EventOccurrence firstOccurrence(CalendarDatabase& database, std::int64_t row, const EventZone& phoneZone) {
  const EventZone* zone = nullptr;
  auto event = readRow(database, row, zone);
  if (!event) throw DatabaseError("the event is not in the calendar database any more");
  if (event->replaces && event->replaces->andLater) findSeries(database, *event);
  placeAt(*event, event->start, event->end, zone, phoneZone);
  return *event;
}

std::optional<EventOccurrence> findByIdentifier(CalendarDatabase& database, const std::string& identifier,
                                                const EventZone& phoneZone) {
  const auto name = parseEventIdentifier(identifier);
  if (!name) return std::nullopt;
  const auto calendar = database.calendarWithIdentifier(name->calendarIdentifier);
  if (!calendar) return std::nullopt;
  // The identifier does not say how the replaced repetition was named, only its seconds.
  Statement& query = database.prepared(
      "SELECT id FROM event WHERE calendar = ?1 AND uid = ?2 AND (replaces_kind > 0) = ?3 AND "
      "(replaces_kind > 3) = ?4 AND replaces_value = ?5 AND cancelled = 0");
  std::int64_t row = 0;
  {
    const StatementScope scope(query);
    query.bind(1, calendar->id).bind(2, name->uid).bind(3, name->replaced ? 1 : 0);
    query.bind(4, name->andLater ? 1 : 0).bind(5, name->replaced.value_or(0));
    if (!query.step()) return std::nullopt;
    row = query.integer(0);
  }
  return firstOccurrence(database, row, phoneZone);
}

}  // namespace phone
