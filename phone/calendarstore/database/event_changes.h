// Changes that are made on the phone itself: new events, changed ones, deleted ones.
#pragma once

#include "phone/calendarstore/database/occurrence_query.h"

namespace phone {

/// What an editor says of an event. Times are instants; those of an all-day event are cut to whole days.
struct EventDraft {
  std::int64_t calendar = 0;
  std::string title = {};
  std::optional<std::string> location = std::nullopt;
  bool isAllDay = false;
  Seconds start = 0;
  Seconds end = 0;
};

/// How far a change of an event that repeats reaches.
enum class EditSpan { kThisOccurrence, kFutureOccurrences };

struct EditContext {
  CalendarDatabase& database;
  const EventZone& phoneZone;
  /// When the change is made.
  Seconds now;
};

/// Each is one transaction, and throws DatabaseError with nothing changed. The occurrence that comes back is
/// the one that was edited, as the database has it now.

EventOccurrence addEvent(const EditContext& context, const EventDraft& draft);

/// `occurrence` is the one that the editor was opened with. This occurrence alone: an event of its own takes
/// its place in the series. Future occurrences: the series ends before this one and a new one begins here,
/// unless this is the first; then the whole series changes.
EventOccurrence changeEvent(const EditContext& context, const EventOccurrence& occurrence,
                            const EventDraft& draft, EditSpan span);

void deleteEvent(const EditContext& context, const EventOccurrence& occurrence, EditSpan span);

}  // namespace phone
