// Lists the occurrences of rules, for check_recurrence. Reads a rule a line, as
// "START FROM TO WINDOW RULE" with times like 20240131T093000, or a date as START for an event that lasts
// whole days, and WINDOW in seconds. Prints two lines for each: the occurrences from FROM up to, but without,
// TO asked for at once, and those asked for window by window.
#include <algorithm>
#include <iostream>
#include <sstream>
#include <vector>

#include "phone/calendarstore/recurrence/ical_owned.h"
#include "phone/calendarstore/recurrence/recurrence_rule.h"

namespace phone {
namespace {

Seconds parse(const std::string& text) { return wallSeconds(icaltime_from_string(text.c_str())); }

/// Adds the occurrences of [from, to), the start among them, as the store would.
void collect(const RecurrenceRule* rule, Seconds start, Seconds from, Seconds to,
             std::vector<Seconds>& found) {
  const std::size_t before = found.size();
  if (start >= from && start < to) found.push_back(start);
  constexpr std::int64_t kSteps = 50'000'000;
  WalkBudget budget(kSteps);
  const auto add = [&](Seconds next) {
    if (found.size() == before || found.back() != next) found.push_back(next);
    return true;
  };
  if (rule != nullptr && !rule->forEachStart(from, to - 1, budget, add)) std::cerr << "gave up\n";
}

void print(const std::vector<Seconds>& starts) {
  for (const Seconds start : starts) std::cout << start << ' ';
  std::cout << '\n';
}

void list(const std::string& line) {
  std::istringstream parts(line);
  std::string start;
  std::string from;
  std::string to;
  Seconds window = 0;
  std::string text;
  parts >> start >> from >> to >> window >> text;
  const RuleStart begin{parse(start), start.find('T') == std::string::npos, EventZone::utc()};
  WalkBudget toEnds(kMaxStepsToEnds);
  const auto read = RecurrenceRule::fromFile(icalrecurrencetype_from_string(text.c_str()), begin, toEnds);
  // Through its text, as it comes out of the store.
  std::optional<RecurrenceRule> rule;
  if (read) rule = RecurrenceRule::fromStored(read->text(), begin.wall);
  std::vector<Seconds> atOnce;
  collect(rule ? &*rule : nullptr, begin.wall, parse(from), parse(to), atOnce);
  std::vector<Seconds> byWindow;
  for (Seconds place = parse(from); place < parse(to); place += window) {
    collect(rule ? &*rule : nullptr, begin.wall, place, std::min(place + window, parse(to)), byWindow);
  }
  print(atOnce);
  print(byWindow);
}

}  // namespace
}  // namespace phone

int main() {
  for (std::string line; std::getline(std::cin, line);) phone::list(line);
}
