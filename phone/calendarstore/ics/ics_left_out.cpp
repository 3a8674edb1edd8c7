#include "phone/calendarstore/ics/ics_left_out.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace phone {

namespace {

struct Kind {
  std::string_view name;
  std::string_view one;
  std::string_view several;
};

/// In the order in which they are told: what is missing as a whole, then what is missing of events.
constexpr Kind kKindsLeftOut[] = {
    {"VTODO", "to-do", "to-dos"},
    {"VJOURNAL", "journal entry", "journal entries"},
    {"VFREEBUSY", "list of busy times", "lists of busy times"},
    {"", "entry of another kind", "entries of other kinds"},
    {IcsLeftOut::kForeignRule, "rule in a foreign calendar", "rules in foreign calendars"},
    {IcsLeftOut::kCount, "number of occurrences too large to count",
     "numbers of occurrences too large to count"},
    {IcsLeftOut::kChangeOfEarlier, "change of earlier repetitions", "changes of earlier repetitions"},
    {"VALARM", "alarm", "alarms"},
    {"ATTENDEE", "attendee", "attendees"},
    {"ATTACH", "attachment", "attachments"},
    {"DESCRIPTION", "description", "descriptions"},
    {"URL", "web address", "web addresses"},
    {"CONFERENCE", "conference link", "conference links"},
    {"CATEGORIES", "list of categories", "lists of categories"},
    {"COMMENT", "comment", "comments"},
    {"CONTACT", "contact", "contacts"},
    {"RESOURCES", "list of resources", "lists of resources"},
};

std::size_t indexOf(std::string_view name) {
  const auto* const found = std::find_if(std::begin(kKindsLeftOut), std::end(kKindsLeftOut),
                                         [name](const Kind& kind) { return kind.name == name; });
  return static_cast<std::size_t>(found - std::begin(kKindsLeftOut));
}

}  // namespace

void IcsLeftOut::countComponent(std::string_view name) {
  const std::size_t known = indexOf(name);
  ++counts_[known < kKinds ? known : indexOf("")];
}

void IcsLeftOut::countInEvent(std::string_view name) {
  const std::size_t known = indexOf(name);
  if (known < kKinds) ++counts_[known];
}

void IcsLeftOut::add(const IcsLeftOut& more) {
  for (std::size_t i = 0; i < kKinds; ++i) counts_[i] += more.counts_[i];
}

std::string IcsLeftOut::text() const {
  static_assert(std::size(kKindsLeftOut) == kKinds);
  std::vector<std::string> parts;
  for (std::size_t i = 0; i < kKinds; ++i) {
    const Kind& kind = kKindsLeftOut[i];
    if (counts_[i] == 0) continue;
    parts.push_back(std::to_string(counts_[i]) + " " +
                    std::string(counts_[i] == 1 ? kind.one : kind.several));
  }
  std::string text;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    text += (i == 0 ? "" : i + 1 == parts.size() ? " and " : ", ") + parts[i];
  }
  return text;
}

}  // namespace phone
