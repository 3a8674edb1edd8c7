// phone export: calendars of the phone as .ics files.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>

#include "phone/app/calendar_choice.h"
#include "phone/app/printable.h"
#include "phone/app/verbs.h"
#include "phone/calendarstore/database/calendar_lookup.h"
#include "phone/calendarstore/ics/calendar_export.h"
#include "phone/eventkit/store_connection.h"
#include "phone/foundation/output_file.h"
#include "platform/foundation/ns_date.h"

namespace phone {

namespace {

struct Arguments {
  std::vector<std::string> calendars;
  std::string output = "-";
};

/// Those that are named, each once; without names, all.
std::vector<CalendarRecord> wantedCalendars(const std::vector<std::string>& names) {
  std::vector<CalendarRecord> all = storedCalendars();
  if (all.empty()) {
    throw std::runtime_error("there are no calendars to export; \"phone import FILE.ics\" brings some in");
  }
  if (names.empty()) return all;
  std::vector<CalendarRecord> wanted;
  for (const std::string& name : names) {
    const CalendarRecord calendar = calendarMeant(all, name);
    const bool isNew = std::none_of(wanted.begin(), wanted.end(),
                                    [&](const CalendarRecord& each) { return each.id == calendar.id; });
    if (isNew) wanted.push_back(calendar);
  }
  return wanted;
}

void exportCalendars(const Arguments& arguments) {
  const std::vector<CalendarRecord> calendars = wantedCalendars(arguments.calendars);
  const auto now = static_cast<Seconds>(NSDate::date()->timeIntervalSinceReferenceDate());
  std::string text;
  std::string summary;
  readDatabase([&](CalendarDatabase& database) {
    for (const CalendarRecord& calendar : calendars) {
      const ExportedCalendar exported = exportCalendar(database, calendar, now);
      text += exported.text;
      summary += printable(calendar.title) + ": " + std::to_string(exported.events) +
                 (exported.events == 1 ? " event\n" : " events\n");
    }
  });
  if (arguments.output == "-") {
    std::cout << text;
  } else {
    writeOutputFile(arguments.output, text);
    std::cout << summary;
  }
}

}  // namespace

void addExportVerb(CLI::App& command, const Invocation& invocation) {
  CLI::App* const verb =
      addVerb(command, "export", "Write calendars as an .ics file, from which an import makes the same ones",
              "phone export Work --output work.ics\n  phone export > everything.ics");
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("CALENDAR", arguments->calendars,
                   "Names or identifiers; without any, all calendars, one behind the other");
  verb->add_option("--output", arguments->output, "The file to write; - is the standard output")
      ->type_name("FILE")
      ->capture_default_str();
  verb->callback([&invocation, arguments] {
    invocation.openPhone();
    exportCalendars(*arguments);
  });
}

}  // namespace phone
