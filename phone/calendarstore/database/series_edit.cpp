#include "phone/calendarstore/database/series_edit.h"

#include "phone/calendarstore/database/event_table.h"
#include "phone/calendarstore/recurrence/recurrence_rule.h"

namespace phone {

namespace {

/// When the named repetition starts; a day counts from its midnight.
Seconds storedStartOf(const EventRecord& series, const RepetitionName& name) {
  return name.kind == RepetitionKind::kInstant ? name.value : series.toStored(name.value);
}

RepetitionName renamed(const RepetitionName& name, const EventRecord& before, const EventRecord& after) {
  const Seconds shift = after.wallStart() - before.wallStart();
  if (name.kind == RepetitionKind::kDay) return {name.kind, name.value + dayOf(shift) * kSecondsPerDay};
  return repetitionAt(after, after.toStored(before.wallOf(name) + shift));
}

}  // namespace

RepetitionName repetitionAt(const EventRecord& series, Seconds storedStart) {
  return {series.zone ? RepetitionKind::kInstant : RepetitionKind::kWallTime, storedStart};
}

void keepHead(EventRecord& series, Seconds storedStart) {
  for (std::string& rule : series.rules) {
    rule =
        RecurrenceRule::fromStored(rule, series.wallStart()).endingBefore(series.toWall(storedStart)).text();
  }
  std::erase_if(series.added, [&](const AddedDate& date) { return date.start >= storedStart; });
  std::erase_if(series.excluded,
                [&](const RepetitionName& name) { return storedStartOf(series, name) >= storedStart; });
}

void keepTail(EventRecord& series, Seconds storedStart) {
  std::erase_if(series.added, [&](const AddedDate& date) { return date.start < storedStart; });
  std::erase_if(series.excluded,
                [&](const RepetitionName& name) { return storedStartOf(series, name) < storedStart; });
}

void moveRepetitions(EventRecord& series, const EventRecord& before) {
  const Seconds shift = series.wallStart() - before.wallStart();
  for (std::string& rule : series.rules) {
    rule = RecurrenceRule::fromStored(rule, before.wallStart()).shifted(shift).text();
  }
  for (RepetitionName& name : series.excluded) name = renamed(name, before, series);
  for (AddedDate& date : series.added) {
    date.start = series.toStored(before.toWall(date.start) + shift);
    date.end = date.start + series.duration();
  }
  for (ExceptionRule& exception : series.exceptionRules) {
    exception.rule = RecurrenceRule::fromStored(exception.rule, exception.wallStart).shifted(shift).text();
    exception.wallStart += shift;
  }
}

void moveReplacements(CalendarDatabase& database, const EventRecord& from, const EventRecord& to,
                      Seconds storedSince) {
  std::vector<EventRecord> moved;
  for (const std::int64_t row : replacingEvents(database, from.calendar, from.uid)) {
    EventRecord replacement = readEvent(database, row);
    if (storedStartOf(from, *replacement.replaces) < storedSince) continue;
    replacement.replaces = {renamed(*replacement.replaces, from, to), replacement.replaces->andLater};
    replacement.calendar = to.calendar;
    replacement.uid = to.uid;
    // All leave their places before the first takes a new one, which may have been another's.
    removeEvent(database, row);
    moved.push_back(std::move(replacement));
  }
  for (const EventRecord& replacement : moved) insertEvent(database, replacement);
}

void removeReplacements(CalendarDatabase& database, const EventRecord& series, Seconds storedSince) {
  for (const std::int64_t row : replacingEvents(database, series.calendar, series.uid)) {
    if (storedStartOf(series, *readEvent(database, row).replaces) >= storedSince) removeEvent(database, row);
  }
}

}  // namespace phone
