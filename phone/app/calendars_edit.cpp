// phone calendars rename and remove.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>
#include <strings.h>

#include "phone/app/calendar_choice.h"
#include "phone/app/calendar_traces.h"
#include "phone/app/printable.h"
#include "phone/app/usage_error.h"
#include "phone/app/verbs.h"
#include "phone/calendarstore/database/calendar_edit.h"
#include "phone/calendarstore/database/calendar_lookup.h"
#include "phone/eventkit/store_connection.h"

namespace phone {

namespace {

void rename(const std::string& meant, const std::string& title) {
  if (title.empty()) throw UsageError("the new name is empty");
  const std::vector<CalendarRecord> calendars = storedCalendars();
  const CalendarRecord calendar = calendarMeant(calendars, meant);
  for (const CalendarRecord& other : calendars) {
    if (other.id == calendar.id || strcasecmp(other.title.c_str(), title.c_str()) != 0) continue;
    throw std::runtime_error("there is a calendar \"" + other.title + "\" already");
  }
  renameCalendar(sharedDatabaseForWriting(), calendar, title);
  std::cout << printable(calendar.title) << ": renamed to " << printable(title) << "\n";
}

/// What is removed does not come back, so it is named without a slip.
CalendarRecord calendarNamedExactly(const std::vector<CalendarRecord>& calendars, const std::string& meant) {
  CalendarRecord calendar = calendarMeant(calendars, meant);
  if (calendar.title != meant && calendar.identifier != meant) {
    throw std::runtime_error("there is no calendar \"" + meant + "\"; is \"" + calendar.title + "\" meant?");
  }
  return calendar;
}

void remove(const std::vector<std::string>& names) {
  const std::vector<CalendarRecord> calendars = storedCalendars();
  std::vector<CalendarRecord> removed;
  std::vector<std::string> identifiers;
  for (const std::string& name : names) {
    const CalendarRecord calendar = calendarNamedExactly(calendars, name);
    if (std::find(identifiers.begin(), identifiers.end(), calendar.identifier) != identifiers.end()) continue;
    removed.push_back(calendar);
    identifiers.push_back(calendar.identifier);
  }
  CalendarTraces traces;
  const std::vector<std::int64_t> counts = removeCalendars(sharedDatabaseForWriting(), removed);
  for (std::size_t i = 0; i < removed.size(); ++i) {
    std::cout << printable(removed[i].title) << ": removed, with " << counts[i]
              << (counts[i] == 1 ? " event\n" : " events\n");
  }
  traces.forget(identifiers);
}

}  // namespace

void addCalendarsRenameVerb(CLI::App& calendars, const Invocation& invocation) {
  CLI::App* const verb =
      addVerb(calendars, "rename", "Give a calendar another name; an import under the old one still finds it",
              "phone calendars rename Work Office");
  struct Names {
    std::string calendar;
    std::string title;
  };
  const auto names = std::make_shared<Names>();
  verb->add_option("CALENDAR", names->calendar, "Its name or identifier")->required();
  verb->add_option("NAME", names->title, "The new name")->required();
  verb->callback([&invocation, names] {
    invocation.openPhone();
    rename(names->calendar, names->title);
  });
}

void addCalendarsRemoveVerb(CLI::App& calendars, const Invocation& invocation) {
  CLI::App* const verb = addVerb(
      calendars, "remove",
      "Remove calendars with all their events, and what the phone remembers of them; this is not asked "
      "twice and cannot be undone, so export first what may be wanted again",
      "phone export Holidays --output holidays.ics\n  phone calendars remove Holidays");
  const auto names = std::make_shared<std::vector<std::string>>();
  verb->add_option("CALENDAR", *names, "Exact names, or identifiers")->required();
  verb->callback([&invocation, names] {
    invocation.openPhone();
    remove(*names);
  });
}

}  // namespace phone
