#include "phone/calendarstore/ics/import_targets.h"

#include "phone/calendarstore/database/calendar_color.h"
#include "phone/calendarstore/database/event_table.h"
#include "phone/calendarstore/ics/event_merge.h"

namespace phone {

ImportTarget& ImportTargets::named(const std::string& name, const std::string& color) {
  const auto [place, isNew] = targets_.try_emplace(name);
  if (isNew) {
    place->second.imported.calendar = database_.calendarNamed(name, parseCalendarColor(color));
    order_.push_back(&place->second);
  }
  return place->second;
}

void ImportTargets::merge(ImportTarget& target, EventRecord event) {
  ImportedCalendar& counts = target.imported;
  event.calendar = counts.calendar.id;
  const MergedEvent merged = mergeEvent(database_, event);
  switch (merged.outcome) {
    case MergeOutcome::kAdded:
      ++counts.added;
      break;
    case MergeOutcome::kUpdated:
      ++counts.updated;
      break;
    case MergeOutcome::kUnchanged:
      ++counts.unchanged;
      break;
    case MergeOutcome::kOlder:
      ++counts.older;
      break;
  }
  if (event.isCancelled) ++counts.cancelled;
  if (removesMissing_) target.seen.insert(merged.row);
  ++events_;
}

void ImportTargets::removeMissing() {
  for (ImportTarget* const target : order_) {
    std::vector<std::int64_t> missing;
    Statement& query = database_.prepared("SELECT id FROM event WHERE calendar = ?1 AND imported = 1");
    {
      const StatementScope scope(query);
      for (query.bind(1, target->imported.calendar.id); query.step();) {
        if (!target->seen.contains(query.integer(0))) missing.push_back(query.integer(0));
      }
    }
    for (const std::int64_t row : missing) removeEvent(database_, row);
    target->imported.removed = missing.size();
  }
}

std::vector<ImportedCalendar> ImportTargets::results() const {
  std::vector<ImportedCalendar> results;
  results.reserve(order_.size());
  for (const ImportTarget* const target : order_) results.push_back(target->imported);
  return results;
}

}  // namespace phone
