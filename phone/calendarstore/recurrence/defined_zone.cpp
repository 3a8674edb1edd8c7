#include "phone/calendarstore/recurrence/defined_zone.h"

#include <iterator>
#include <limits>
#include <utility>

#include "phone/calendarstore/recurrence/ical_owned.h"

namespace phone {

namespace {

/// Nobody changed clocks earlier, though the rules of some programs begin in 1601.
constexpr Seconds kFirstListed = wallSeconds(cctz::civil_second(1900));
/// Later changes are looked for when somebody asks for such a time.
constexpr Seconds kFirstUnlisted = wallSeconds(cctz::civil_second(2081));

/// A file can name a change for every second. A real zone has two a year, and takes a quarter of the steps.
constexpr std::int64_t kMaxStepsToList = 20'000;
constexpr std::size_t kMaxListed = 2'000;
/// A change is looked for in the year before a time, in ten, in a hundred.
constexpr Seconds kFirstSpan = 400 * kSecondsPerDay;
constexpr std::int64_t kMaxStepsToFind = 2'000;

template <typename Value>
std::optional<Value> valueOf(icalcomponent* component, icalproperty_kind kind,
                             Value (*read)(const icalproperty*)) {
  icalproperty* const property = icalcomponent_get_first_property(component, kind);
  return property == nullptr ? std::nullopt : std::optional(read(property));
}

}  // namespace

DefinedZone::DefinedZone(icalcomponent* definition) {
  WalkBudget toList(kMaxStepsToList);
  for (icalcomponent* part = icalcomponent_get_first_component(definition, ICAL_ANY_COMPONENT);
       part != nullptr; part = icalcomponent_get_next_component(definition, ICAL_ANY_COMPONENT)) {
    const icalcomponent_kind kind = icalcomponent_isa(part);
    if (kind == ICAL_XSTANDARD_COMPONENT || kind == ICAL_XDAYLIGHT_COMPONENT) add(part, toList);
  }
  std::stable_sort(changes_.begin(), changes_.end(),
                   [](const Change& left, const Change& right) { return left.instant < right.instant; });
}

void DefinedZone::add(icalcomponent* observance, WalkBudget& toList) {
  const auto start = valueOf(observance, ICAL_DTSTART_PROPERTY, icalproperty_get_dtstart);
  const auto after = valueOf(observance, ICAL_TZOFFSETTO_PROPERTY, icalproperty_get_tzoffsetto);
  if (!start || !after || icaltime_is_null_time(*start) != 0) return;
  const auto before = valueOf(observance, ICAL_TZOFFSETFROM_PROPERTY, icalproperty_get_tzoffsetfrom);
  const Offsets offsets{before.value_or(*after), *after};
  const Seconds first = wallSeconds(*start);
  addChange(first, offsets);
  forEachProperty(observance, ICAL_RDATE_PROPERTY, [&](icalproperty* property) {
    const icaltimetype time = icalproperty_get_rdate(property).time;
    if (icaltime_is_null_time(time) != 0) return;
    addChange(wallSeconds(time) + (icaltime_is_utc(time) != 0 ? offsets.before : 0), offsets);
  });
  forEachProperty(observance, ICAL_RRULE_PROPERTY, [&](icalproperty* property) {
    addRule(icalproperty_get_rrule(property), first, offsets, toList);
  });
}

void DefinedZone::addRule(const icalrecurrencetype& rule, Seconds start, Offsets offsets,
                          WalkBudget& toList) {
  Seconds last = kLastWallTime;
  if (icaltime_is_null_time(rule.until) == 0) {
    last = wallSeconds(rule.until) + (icaltime_is_utc(rule.until) != 0 ? offsets.before : 0);
    if (rule.until.is_date != 0) last += kSecondsPerDay - 1;
  }
  RecurrenceWalk walk(rule, start);
  int left = rule.count == 0 ? std::numeric_limits<int>::max() : rule.count;
  bool isReal = false;
  const auto use = [&](Seconds onset) {
    isReal = true;
    addChange(onset, offsets);
    return --left > 0;
  };
  const Seconds from = std::max(start, kFirstListed);
  const bool isListed = from > last || walk.forEach(from, std::min(last, kFirstUnlisted - 1), toList, use);
  // A rule that never came true is not asked again.
  if (isListed && isReal && last >= kFirstUnlisted) rules_.push_back({std::move(walk), last, offsets});
}

void DefinedZone::addChange(Seconds onset, Offsets offsets) {
  if (changes_.size() < kMaxListed) changes_.push_back({onset - offsets.before, offsets});
}

std::optional<DefinedZone::Change> DefinedZone::latestOfRules(Seconds instant) const {
  std::optional<Change> latest;
  WalkBudget budget(kMaxStepsToFind);
  for (Seconds span = kFirstSpan; !latest && !budget.isSpent(); span *= 10) {
    const Seconds from = std::max(instant - span, kFirstUnlisted);
    for (const Rule& rule : rules_) {
      rule.walk.forEach(from, std::min(instant + rule.offsets.before, rule.last), budget, [&](Seconds onset) {
        const Change change{onset - rule.offsets.before, rule.offsets};
        if (!latest || change.instant > latest->instant) latest = change;
        return true;
      });
    }
    if (from == kFirstUnlisted) break;
  }
  return latest;
}

/// `timeOf` says when a change counts, in the way in which `time` does.
template <typename TimeOf>
Seconds DefinedZone::offsetAt(Seconds time, TimeOf timeOf) const {
  if (time >= kFirstUnlisted) {
    // A change within a day may count after the time, as a clock shows it; then the one before it does.
    auto change = latestOfRules(time + kSecondsPerDay);
    if (change && timeOf(*change) > time) change = latestOfRules(change->instant - 1);
    if (change) return change->offsets.after;
  }
  const auto later = std::partition_point(changes_.begin(), changes_.end(),
                                          [&](const Change& change) { return timeOf(change) <= time; });
  if (later != changes_.begin()) return std::prev(later)->offsets.after;
  return changes_.empty() ? 0 : changes_.front().offsets.before;
}

Seconds DefinedZone::offsetAtInstant(Seconds instant) const {
  return offsetAt(instant, [](const Change& change) { return change.instant; });
}

Seconds DefinedZone::offsetAtWall(Seconds wall) const {
  return offsetAt(wall, [](const Change& change) { return change.wall(); });
}

}  // namespace phone
