#include "phone/calendarstore/ics/event_merge.h"

#include "phone/calendarstore/database/event_table.h"

namespace phone {

namespace {

bool isOlder(const EventRecord& event, const EventRecord& stored) {
  const bool bothSayWhen = event.modified != 0 && stored.modified != 0;
  if (bothSayWhen && event.modified != stored.modified) return event.modified < stored.modified;
  return event.revision < stored.revision;
}

/// A file says of a repetition either that it alone is changed or that all later ones are, too. What an older
/// version of the file said in the other way must not stay beside it.
void removeOppositeChange(CalendarDatabase& database, const EventRecord& event) {
  if (!event.replaces) return;
  ReplacedRepetition opposite = *event.replaces;
  opposite.andLater = !opposite.andLater;
  const auto row = findEvent(database, event.calendar, event.uid, opposite);
  if (!row) return;
  const EventRecord stored = readEvent(database, *row);
  if (stored.isImported && !isOlder(event, stored)) removeEvent(database, *row);
}

}  // namespace

MergedEvent mergeEvent(CalendarDatabase& database, const EventRecord& event) {
  removeOppositeChange(database, event);
  if (const auto added = insertEvent(database, event)) return {MergeOutcome::kAdded, *added};
  const auto row = findEvent(database, event.calendar, event.uid, event.replaces);
  if (!row) throw DatabaseError("the calendar database takes no event of the uid " + event.uid);
  const EventRecord stored = readEvent(database, *row);
  if (sameContent(event, stored)) return {MergeOutcome::kUnchanged, *row};
  if (isOlder(event, stored)) return {MergeOutcome::kOlder, *row};
  replaceEvent(database, *row, event);
  return {MergeOutcome::kUpdated, *row};
}

}  // namespace phone
