#include "phone/calendarstore/database/repetition_exceptions.h"

#include <algorithm>

namespace phone {

RepetitionExceptions::RepetitionExceptions(CalendarDatabase& database, std::int64_t series) {
  Statement& row = database.prepared("SELECT calendar, uid, zone, changed_from FROM event WHERE id = ?1");
  const StatementScope scope(row);
  if (!row.bind(1, series).step()) return;
  zone_ = database.zone(row.integer(2));
  if (!row.isNull(3)) changedFrom_ = row.integer(3);
  addNames(database.prepared("SELECT kind, value FROM event_date WHERE event = ?1 AND kind IN (1, 2, 3)")
               .bind(1, series));
  const std::string uid = row.text(1);
  addNames(
      database
          .prepared("SELECT replaces_kind, replaces_value FROM event WHERE calendar = ?1 AND uid = ?2 AND "
                    "replaces_kind IN (1, 2, 3)")
          .bind(1, row.integer(0))
          .bind(2, uid));
  std::sort(names_.begin(), names_.end());
  Statement& rules = database.prepared("SELECT wall_start, rule FROM exception_rule WHERE event = ?1");
  const StatementScope rulesScope(rules);
  for (rules.bind(1, series); rules.step();) {
    rules_.push_back(RecurrenceRule::fromStored(rules.text(1), rules.integer(0)));
  }
}

void RepetitionExceptions::addNames(Statement& query) {
  const StatementScope scope(query);
  while (query.step()) names_.push_back({static_cast<RepetitionKind>(query.integer(0)), query.integer(1)});
}

bool RepetitionExceptions::leaveOut(Seconds storedStart, WalkBudget& budget) const {
  if (names_.empty() && rules_.empty()) return false;
  const Seconds wall = wallOf(storedStart);
  // A series without a zone has no instants of its own; its wall times serve for both.
  return isNamed({RepetitionKind::kInstant, storedStart}) || isNamed({RepetitionKind::kWallTime, wall}) ||
         isNamed({RepetitionKind::kDay, dayOf(wall) * kSecondsPerDay}) || isRuledOut(wall, budget);
}

bool RepetitionExceptions::isChangedAlong(Seconds storedStart) const {
  return changedFrom_ < kEndless && wallOf(storedStart) >= changedFrom_;
}

bool RepetitionExceptions::isNamed(const RepetitionName& name) const {
  return std::binary_search(names_.begin(), names_.end(), name);
}

bool RepetitionExceptions::isRuledOut(Seconds wallStart, WalkBudget& budget) const {
  return std::any_of(rules_.begin(), rules_.end(), [&](const RecurrenceRule& rule) {
    bool isFound = false;
    if (budget.take()) {
      rule.forEachStart(wallStart, wallStart, budget, [&isFound](Seconds) {
        isFound = true;
        return false;
      });
    }
    return isFound;
  });
}

}  // namespace phone
