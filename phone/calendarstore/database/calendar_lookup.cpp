#include "phone/calendarstore/database/calendar_lookup.h"

#include <algorithm>
#include <stdexcept>
#include <strings.h>

namespace phone {

namespace {

constexpr std::size_t kMaxNamed = 10;

std::string titlesOf(const std::vector<CalendarRecord>& calendars) {
  std::string titles;
  for (std::size_t i = 0; i < calendars.size() && i < kMaxNamed; ++i) {
    titles += (i == 0 ? "" : ", ") + calendars[i].title;
  }
  if (calendars.size() > kMaxNamed)
    titles += " and " + std::to_string(calendars.size() - kMaxNamed) + " more";
  return titles.empty() ? "there is none" : "there are " + titles;
}

std::string identifiersOf(const std::vector<CalendarRecord>& calendars) {
  std::string lines;
  for (const CalendarRecord& calendar : calendars)
    lines += "\n  " + calendar.identifier + "  " + calendar.title;
  return lines;
}

template <typename Fits>
std::vector<CalendarRecord> those(const std::vector<CalendarRecord>& calendars, Fits fits) {
  std::vector<CalendarRecord> found;
  std::copy_if(calendars.begin(), calendars.end(), std::back_inserter(found), fits);
  return found;
}

}  // namespace

CalendarRecord calendarMeant(const std::vector<CalendarRecord>& calendars, const std::string& meant) {
  auto found = those(calendars, [&](const CalendarRecord& each) { return each.identifier == meant; });
  // A name that is spelled exactly so is meant rather than one in another case.
  if (found.empty())
    found = those(calendars, [&](const CalendarRecord& each) { return each.title == meant; });
  if (found.empty()) {
    found = those(calendars, [&](const CalendarRecord& each) {
      return strcasecmp(each.title.c_str(), meant.c_str()) == 0;
    });
  }
  if (found.empty()) {
    throw std::runtime_error("there is no calendar \"" + meant + "\"; " + titlesOf(calendars));
  }
  if (found.size() > 1) {
    throw std::runtime_error("several calendars are called \"" + meant +
                             "\"; name one by its identifier:" + identifiersOf(found));
  }
  return found.front();
}

}  // namespace phone
