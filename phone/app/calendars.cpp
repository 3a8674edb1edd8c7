// phone calendars: which calendars there are, and which of them the lock screen searches.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>

#include "phone/app/calendar_choice.h"
#include "phone/app/printable.h"
#include "phone/app/printed_json.h"
#include "phone/app/usage_error.h"
#include "phone/app/verbs.h"
#include "phone/calendarstore/database/calendar_lookup.h"

namespace phone {

namespace {

std::string describe(const LockScreenSearch& search) {
  if (!search.whyNothing.empty()) return "The lock screen searches no calendar: " + search.whyNothing + ".";
  return search.bySelection ? "The lock screen goes by the selection (onlySelectedCalendars is off)."
                            : "The lock screen goes by the Calendar app (onlySelectedCalendars is on).";
}

void listForPeople(const std::vector<CalendarChoice>& calendars, const TerminalStyle& style) {
  for (const CalendarChoice& calendar : calendars) {
    std::cout << style.dot(calendar.color) << style.bold(printable(calendar.title)) << "\n    "
              << style.dim(calendar.color + "  " + calendar.identifier) << "\n    "
              << (calendar.shown ? "shown" : "hidden") << " in the Calendar app, "
              << (calendar.selected ? "" : "not ")
              << "selected for the lock screen: " << (calendar.searched ? "searched" : "not searched")
              << "\n";
  }
  if (calendars.empty()) {
    std::cout << "There are no calendars; \"phone import FILE.ics\" brings some in.\n";
    return;
  }
  std::cout << describe(lockScreenSearch()) << "\n";
}

void listAsJson(const std::vector<CalendarChoice>& calendars) {
  auto all = nlohmann::ordered_json::array();
  for (const CalendarChoice& calendar : calendars) {
    all.push_back({{"identifier", calendar.identifier},
                   {"title", calendar.title},
                   {"color", calendar.color},
                   {"isShown", calendar.shown},
                   {"isSelected", calendar.selected},
                   {"isSearched", calendar.searched}});
  }
  std::cout << printedJson(all);
}

std::vector<std::string> identifiersOf(const std::vector<std::string>& meant) {
  const std::vector<CalendarRecord> calendars = storedCalendars();
  std::vector<std::string> identifiers;
  identifiers.reserve(meant.size());
  for (const std::string& name : meant) identifiers.push_back(calendarMeant(calendars, name).identifier);
  return identifiers;
}

struct Arguments {
  bool json = false;
  bool none = false;
  std::vector<std::string> calendars;
};

void addShownVerb(CLI::App& calendars, const Invocation& invocation,
                  const std::shared_ptr<Arguments>& arguments, bool shown) {
  const std::string name = shown ? "show" : "hide";
  CLI::App* const verb = addVerb(
      calendars, name, std::string("Switch calendars ") + (shown ? "on" : "off") + " in the Calendar app",
      "phone calendars " + name + " Work");
  verb->add_option("CALENDAR", arguments->calendars, "Names or identifiers")->required();
  verb->callback([&invocation, arguments, shown] {
    invocation.openPhone();
    setShown(identifiersOf(arguments->calendars), shown);
  });
}

void addSelect(CLI::App& calendars, const Invocation& invocation,
               const std::shared_ptr<Arguments>& arguments) {
  CLI::App* const verb =
      addVerb(calendars, "select",
              "Choose the calendars that the lock screen searches, instead of the Calendar app's",
              "phone calendars select Work Home\n  phone settings set onlySelectedCalendars off");
  verb->add_option("CALENDAR", arguments->calendars, "Names or identifiers; they replace an earlier choice");
  verb->add_flag("--none", arguments->none, "Choose no calendar");
  verb->callback([&invocation, arguments] {
    if (arguments->none == !arguments->calendars.empty())
      throw UsageError("name the calendars, or give --none");
    invocation.openPhone();
    setSelected(identifiersOf(arguments->calendars));
    if (lockScreenSearch().bySelection) return;
    std::cerr
        << "phone calendars select: the lock screen still goes by the Calendar app; \"phone settings set "
           "onlySelectedCalendars off\" lets it go by this choice\n";
  });
}

}  // namespace

void addCalendarsVerb(CLI::App& command, const Invocation& invocation) {
  CLI::App* const calendars =
      addVerb(command, "calendars", "List the calendars, and choose those that are searched",
              "phone calendars list\n  phone calendars hide Holidays");
  calendars->require_subcommand(1);
  const auto arguments = std::make_shared<Arguments>();
  CLI::App* const list =
      addVerb(*calendars, "list", "Show every calendar and whether the lock screen searches it",
              "phone calendars list --json");
  list->add_flag("--json", arguments->json, "Print JSON: a list of objects, one for each calendar");
  list->callback([&invocation, arguments] {
    invocation.openPhone();
    const std::vector<CalendarChoice> choices = calendarChoices();
    arguments->json ? listAsJson(choices) : listForPeople(choices, invocation.style());
  });
  addShownVerb(*calendars, invocation, arguments, true);
  addShownVerb(*calendars, invocation, arguments, false);
  addSelect(*calendars, invocation, arguments);
  addCalendarsRenameVerb(*calendars, invocation);
  addCalendarsRemoveVerb(*calendars, invocation);
}

}  // namespace phone
