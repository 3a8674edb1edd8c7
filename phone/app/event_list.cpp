// phone event list: the coming events of all calendars, with the names that other verbs take.
#include <CLI/CLI.hpp>
#include <iostream>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>

#include "phone/app/hidden_event_list.h"
#include "phone/app/host_arguments.h"
#include "phone/app/listed_event.h"
#include "phone/app/local_time.h"
#include "phone/app/number_option.h"
#include "phone/app/printable.h"
#include "phone/app/printed_json.h"
#include "phone/app/verbs.h"
#include "phone/calendarstore/database/occurrence_query.h"
#include "phone/eventkit/store_connection.h"
#include "phone/foundation/foundation.h"
#include "platform/foundation/ns_date.h"

namespace phone {

namespace {

struct Arguments {
  HostArguments host;
  int days = 14;
  bool json = false;
};

std::vector<ListedEvent> comingEvents(double now, int days) {
  std::vector<ListedEvent> events;
  const HiddenEvents hiddenEvents;
  const auto start = static_cast<Seconds>(now);
  readDatabase([&](CalendarDatabase& database) {
    std::map<std::int64_t, CalendarRecord> calendars;
    std::vector<std::int64_t> rows;
    for (const CalendarRecord& calendar : database.calendars()) {
      calendars.emplace(calendar.id, calendar);
      rows.push_back(calendar.id);
    }
    const FoundOccurrences found =
        occurrencesInRange(database, {start, start + days * kSecondsPerDay}, rows, phoneZone());
    for (const std::string& omission : found.omissions) std::cerr << "note: " << omission << "\n";
    for (const EventOccurrence& occurrence : found.occurrences) {
      events.push_back(listedEvent(occurrence, calendars.at(occurrence.calendar), hiddenEvents));
    }
  });
  return events;
}

void listForPeople(const std::vector<ListedEvent>& events, double now, const cctz::time_zone& zone,
                   const TerminalStyle& style) {
  for (const ListedEvent& event : events) {
    const EventOccurrence& occurrence = event.occurrence;
    std::cout << timeSpan(static_cast<double>(occurrence.start), static_cast<double>(occurrence.end),
                          occurrence.isAllDay, now, zone)
              << "\n    " << style.bold(printable(occurrence.title))
              << style.dim(event.isHidden ? "  (hidden from the lock screen)" : "") << "\n";
    if (occurrence.location && !occurrence.location->empty()) {
      std::cout << "    " << printable(*occurrence.location) << "\n";
    }
    std::cout << "    " << style.dot(event.calendarColor)
              << style.dim(printable(event.calendarTitle) + (occurrence.repeats ? ", repeats" : "") + ", " +
                           event.identifier)
              << "\n";
  }
  if (events.empty()) std::cout << "There are no events in these days.\n";
}

void listAsJson(const std::vector<ListedEvent>& events, const cctz::time_zone& zone) {
  auto all = nlohmann::ordered_json::array();
  for (const ListedEvent& event : events) all.push_back(jsonOf(event, zone));
  std::cout << printedJson(all);
}

}  // namespace

void addEventListVerb(CLI::App& event, const Invocation& invocation) {
  CLI::App* const verb =
      addVerb(event, "list", "List the coming events of all calendars", "phone event list --days 30");
  const auto arguments = std::make_shared<Arguments>();
  requireWholeNumber(*verb->add_option("--days", arguments->days, "How many days to list, from now on")
                          ->capture_default_str(),
                     1, 3650);
  verb->add_flag("--json", arguments->json, "Print JSON: a list of objects, one for each event");
  arguments->host.addOptionsTo(*verb);
  verb->callback([&invocation, arguments] {
    startFoundation(arguments->host.options(invocation.root()));
    const double now = NSDate::date()->timeIntervalSinceReferenceDate();
    const cctz::time_zone zone = zoneNamed(phoneZone().name());
    const auto events = comingEvents(now, arguments->days);
    arguments->json ? listAsJson(events, zone) : listForPeople(events, now, zone, invocation.style());
  });
}

}  // namespace phone
