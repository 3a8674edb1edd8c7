#include "phone/calendarstore/database/event_changes.h"

#include <algorithm>

#include "phone/calendarstore/database/event_table.h"
#include "phone/calendarstore/database/identifiers.h"
#include "phone/calendarstore/database/series_edit.h"

namespace phone {

namespace {

/// Midnight of the day that the instant falls on where the phone is.
Seconds localMidnight(const EditContext& context, Seconds instant) {
  return dayOf(context.phoneZone.toWall(instant)) * kSecondsPerDay;
}

void refuseTimesOutside(const EventRecord& event) {
  // An event of whole days ends with the midnight after its last one.
  const Seconds end = event.toWall(event.end) - (event.isAllDay ? 1 : 0);
  if (event.wallStart() >= kFirstWallTime && end <= kLastWallTime) return;
  throw DatabaseError("the event would lie outside the years " + std::to_string(kFirstYear) + " to " +
                      std::to_string(kLastYear) + ", which are all that the calendar has");
}

/// Takes over what the draft says. A timed event keeps its zone; one that has none gets the phone's.
void applyDraft(const EditContext& context, const EventDraft& draft, EventRecord& event) {
  event.calendar = draft.calendar;
  event.title = draft.title;
  event.location = draft.location;
  if (draft.isAllDay) {
    event.zone.reset();
    event.start = localMidnight(context, draft.start);
    // The end is the last second of the last day, or the midnight after it.
    event.end =
        std::max(localMidnight(context, std::max(draft.end - 1, draft.start)), event.start) + kSecondsPerDay;
  } else {
    if (!event.zone && (event.isAllDay || event.uid.empty())) event.zone = context.phoneZone;
    event.start = event.zone ? draft.start : context.phoneZone.toWall(draft.start);
    event.end = event.start + std::max<Seconds>(draft.end - draft.start, 0);
  }
  event.isAllDay = draft.isAllDay;
  refuseTimesOutside(event);
  event.revision += 1;
  event.modified = context.now;
}

/// Whether a change from that repetition on reaches the whole series.
bool isWhole(const EventRecord& series, Seconds storedStart, EditSpan span) {
  return span == EditSpan::kFutureOccurrences && storedStart <= series.start;
}

/// A calendar holds each uid once; an event that moves to where its uid is taken gets another.
void avoidTakenUid(const EditContext& context, std::int64_t row, EventRecord& event) {
  const auto taken = findEvent(context.database, event.calendar, event.uid, event.replaces);
  if (taken && *taken != row) event.uid = randomIdentifier();
}

std::int64_t changeWhole(const EditContext& context, std::int64_t row, const EventRecord& before,
                         const EventDraft& draft) {
  EventRecord after = before;
  applyDraft(context, draft, after);
  // A repetition is found by calendar and uid; only its own series' calendar can hold it.
  if (before.replaces) after.calendar = before.calendar;
  avoidTakenUid(context, row, after);
  if (before.repeats()) {
    moveRepetitions(after, before);
    moveReplacements(context.database, before, after, before.start);
  }
  replaceEvent(context.database, row, after);
  return row;
}

/// Adds an event, made from `like` and the draft, that stands in for the repetition.
std::int64_t putInPlace(const EditContext& context, const EventRecord& like,
                        const ReplacedRepetition& repetition, const EventDraft& draft) {
  EventRecord one = like;
  one.replaces = repetition;
  one.isImported = false;
  applyDraft(context, draft, one);
  one.calendar = like.calendar;
  const auto row = insertEvent(context.database, one);
  if (!row) throw DatabaseError("this occurrence was changed by another process meanwhile");
  return *row;
}

std::int64_t changeOne(const EditContext& context, const EventRecord& series,
                       const EventOccurrence& occurrence, const EventDraft& draft) {
  EventRecord one = series;
  one.rules.clear();
  one.added.clear();
  one.excluded.clear();
  one.exceptionRules.clear();
  return putInPlace(context, one, {repetitionAt(series, occurrence.storedStart)}, draft);
}

/// A repetition that an event changes along with earlier ones gets an event of its own, which may change the
/// later ones in its turn.
std::int64_t changeAlong(const EditContext& context, const EventOccurrence& occurrence,
                         const EventRecord& changing, const EventDraft& draft, EditSpan span) {
  const EventRecord series = readEvent(context.database, occurrence.series);
  const ReplacedRepetition repetition{repetitionAt(series, occurrence.repetition),
                                      span == EditSpan::kFutureOccurrences};
  const bool isItsFirst = occurrence.storedStart == changing.start;
  if (repetition.andLater && isItsFirst) return changeWhole(context, occurrence.event, changing, draft);
  return putInPlace(context, changing, repetition, draft);
}

std::int64_t changeTail(const EditContext& context, std::int64_t row, const EventRecord& series,
                        const EventOccurrence& occurrence, const EventDraft& draft) {
  EventRecord tail = series;
  keepTail(tail, occurrence.storedStart);
  tail.uid = randomIdentifier();
  tail.start = occurrence.storedStart;
  tail.end = tail.start + series.duration();
  const EventRecord unmoved = tail;
  applyDraft(context, draft, tail);
  moveRepetitions(tail, unmoved);
  const auto added = insertEvent(context.database, tail);
  if (!added) throw DatabaseError("the new series could not be added");
  EventRecord from = unmoved;
  from.calendar = series.calendar;
  from.uid = series.uid;
  moveReplacements(context.database, from, tail, occurrence.storedStart);
  EventRecord head = series;
  keepHead(head, occurrence.storedStart);
  replaceEvent(context.database, row, head);
  return *added;
}

/// Takes the repetition that would start then, as the series counts, out of the series in that row.
void removeRepetition(const EditContext& context, std::int64_t row, Seconds storedStart, EditSpan span) {
  EventRecord series = readEvent(context.database, row);
  if (isWhole(series, storedStart, span)) {
    removeReplacements(context.database, series, series.start);
    removeEvent(context.database, row);
    return;
  }
  if (span == EditSpan::kThisOccurrence) {
    series.excluded.push_back(repetitionAt(series, storedStart));
  } else {
    removeReplacements(context.database, series, storedStart);
    keepHead(series, storedStart);
  }
  series.revision += 1;
  series.modified = context.now;
  replaceEvent(context.database, row, series);
}

/// Whether nothing was edited. Such a save must leave the event alone: a revision of the phone's own would
/// keep later imports out, and an occurrence would leave its series.
bool isUnedited(const EventDraft& draft, const EventOccurrence& shown) {
  return draft.calendar == shown.calendar && draft.title == shown.title &&
         draft.location.value_or("") == shown.location.value_or("") && draft.isAllDay == shown.isAllDay &&
         draft.start == shown.start && draft.end == shown.end;
}

}  // namespace

EventOccurrence addEvent(const EditContext& context, const EventDraft& draft) {
  Transaction transaction = context.database.beginChange();
  EventRecord event;
  applyDraft(context, draft, event);
  event.uid = randomIdentifier();
  const auto row = insertEvent(context.database, event);
  if (!row) throw DatabaseError("the event could not be added");
  EventOccurrence added = firstOccurrence(context.database, *row, context.phoneZone);
  transaction.commit();
  return added;
}

EventOccurrence changeEvent(const EditContext& context, const EventOccurrence& occurrence,
                            const EventDraft& draft, EditSpan span) {
  Transaction transaction = context.database.beginChange();
  const EventRecord before = readEvent(context.database, occurrence.event);
  if (isUnedited(draft, occurrence)) return occurrence;
  std::int64_t row = 0;
  if (occurrence.series != 0) {
    row = changeAlong(context, occurrence, before, draft, span);
  } else if (!before.repeats() || isWhole(before, occurrence.storedStart, span)) {
    row = changeWhole(context, occurrence.event, before, draft);
  } else if (span == EditSpan::kThisOccurrence) {
    row = changeOne(context, before, occurrence, draft);
  } else {
    row = changeTail(context, occurrence.event, before, occurrence, draft);
  }
  EventOccurrence changed = firstOccurrence(context.database, row, context.phoneZone);
  transaction.commit();
  return changed;
}

void deleteEvent(const EditContext& context, const EventOccurrence& occurrence, EditSpan span) {
  Transaction transaction = context.database.beginChange();
  const EventRecord event = readEvent(context.database, occurrence.event);
  if (occurrence.series != 0) {
    removeRepetition(context, occurrence.series, occurrence.repetition, span);
  } else if (event.replaces) {
    // The repetition that it stood in for must not come back.
    const auto series = findEvent(context.database, event.calendar, event.uid, std::nullopt);
    if (series) {
      EventRecord record = readEvent(context.database, *series);
      record.excluded.push_back(*event.replaces);
      replaceEvent(context.database, *series, record);
    }
    removeEvent(context.database, occurrence.event);
  } else if (event.repeats()) {
    removeRepetition(context, occurrence.event, occurrence.storedStart, span);
  } else {
    removeReplacements(context.database, event, event.start);
    removeEvent(context.database, occurrence.event);
  }
  transaction.commit();
}

}  // namespace phone
