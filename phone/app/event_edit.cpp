// phone event new and edit: the event editor, filled in and closed.
#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>

#include "phone/app/calendar_screen_text.h"
#include "phone/app/host_arguments.h"
#include "phone/app/listed_event.h"
#include "phone/app/local_time.h"
#include "phone/app/lockscreen_switch.h"
#include "phone/app/phone_files.h"
#include "phone/app/picture_option.h"
#include "phone/app/printed_json.h"
#include "phone/app/resolve_event.h"
#include "phone/app/verbs.h"
#include "phone/calendarui/calendar_process.h"
#include "phone/eventkit/store_connection.h"
#include "phone/foundation/file_problems.h"
#include "platform/eventkit/ek_event.h"
#include "platform/foundation/ns_date.h"

namespace phone {

namespace {

struct Arguments {
  HostArguments host;
  std::string event;
  std::optional<std::string> title;
  std::optional<std::string> location;
  std::optional<std::string> start;
  std::optional<std::string> end;
  std::optional<std::string> calendar;
  std::string allDay;
  std::string showOnLockscreen;
  bool cancel = false;
  bool json = false;
  PictureOption picture;
};

EventFields fieldsOf(const Arguments& arguments) {
  const cctz::time_zone zone = arguments.host.zone();
  EventFields fields{
      .title = arguments.title, .location = arguments.location, .calendar = arguments.calendar};
  if (arguments.start) fields.start = parseTime(*arguments.start, zone);
  if (arguments.end) fields.end = parseTime(*arguments.end, zone);
  if (!arguments.allDay.empty()) fields.allDay = arguments.allDay == "on";
  return fields;
}

/// Fills the editor in, shows it, and closes it. Gives the identifier of the event; empty when there is none,
/// after a new one was cancelled.
std::string edit(CalendarProcess& calendar, EKEventEditor* editor, const EventFields& fields,
                 const Arguments& arguments, const TerminalStyle& style) {
  calendar.enter(editor, fields);
  if (!arguments.showOnLockscreen.empty()) {
    calendar.setSwitch(editor, kLockscreenSwitch, arguments.showOnLockscreen == "on");
  }
  requireNoFileProblem();
  if (arguments.picture.isWanted()) arguments.picture.write(calendar.pictureOf(editor));
  if (!arguments.json) arguments.picture.text() << textOf(calendar.screenOf(editor), style);
  const auto event = objc::Owned<EKEvent>::retain(static_cast<EKEvent*>(editor->calendarItem()));
  closeEditor(calendar, editor, arguments.cancel ? EditAction::kCancelled : EditAction::kSaved);
  std::string identifier = utf8(event->eventIdentifier());
  if (!identifier.empty() && !arguments.showOnLockscreen.empty()) {
    requireChoiceKept(identifier, arguments.showOnLockscreen == "on");
  }
  return identifier;
}

void printJson(const std::string& identifier, const Arguments& arguments) {
  const auto now = static_cast<Seconds>(std::floor(NSDate::date()->timeIntervalSinceReferenceDate()));
  const cctz::time_zone zone = zoneNamed(phoneZone().name());
  arguments.picture.text() << printedJson(jsonOf(nextOfEvent(identifier, now), zone));
}

void addFieldOptions(CLI::App& verb, Arguments& arguments) {
  verb.add_option("--title", arguments.title, "What the event is called");
  verb.add_option("--location", arguments.location, "Where it takes place");
  verb.add_option("--start", arguments.start, "When it starts: 2026-03-07T17:00; alone, it moves the event")
      ->type_name("TIME");
  verb.add_option("--end", arguments.end, "When it ends")->type_name("TIME");
  verb.add_option("--calendar", arguments.calendar, "Name or identifier of its calendar")
      ->type_name("CALENDAR");
  verb.add_option("--all-day", arguments.allDay, "on or off")->check(CLI::IsMember({"on", "off"}));
  verb.add_option("--show-on-lockscreen", arguments.showOnLockscreen, "on or off: the switch's position")
      ->check(CLI::IsMember({"on", "off"}));
  arguments.picture.addTo(verb, "Draw the editor into this file before it is closed");
  verb.add_flag("--json", arguments.json, "Print JSON instead of text: the object of \"phone event list\"");
  arguments.host.addOptionsTo(verb);
}

}  // namespace

void addEventNewVerb(CLI::App& event, const Invocation& invocation) {
  CLI::App* const verb =
      addVerb(event, "new", "Add an event, and print its identifier",
              "phone event new --title Dentist --start 2026-03-07T17:00 --show-on-lockscreen off");
  const auto arguments = std::make_shared<Arguments>();
  addFieldOptions(*verb, *arguments);
  verb->get_option("--title")->required();
  verb->get_option("--start")->required();
  verb->callback([&invocation, arguments] {
    const EventFields fields = fieldsOf(*arguments);
    auto calendar = CalendarProcess::boot(arguments->host.options(invocation.root()), invocation.plugin());
    const std::string identifier =
        edit(calendar, calendar.newEvent(), fields, *arguments, invocation.style());
    if (arguments->json) return printJson(identifier, *arguments);
    arguments->picture.text() << "\n" << identifier << "\n";
  });
}

void addEventEditVerb(CLI::App& event, const Invocation& invocation) {
  CLI::App* const verb = addVerb(event, "edit", "Change an event in its editor, and save it",
                                 "phone event edit Dentist --start 2026-03-07T18:00");
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("EVENT", arguments->event, kEventArgument)->required();
  addFieldOptions(*verb, *arguments);
  verb->add_flag("--cancel", arguments->cancel,
                 "Close the editor with Cancel: the event stays as it was, only the switch counts");
  verb->callback([&invocation, arguments] {
    const EventFields fields = fieldsOf(*arguments);
    auto calendar = CalendarProcess::boot(arguments->host.options(invocation.root()), invocation.plugin());
    EKEventEditor* const editor = calendar.editEvent(resolveEvent(arguments->event));
    const std::string identifier = edit(calendar, editor, fields, *arguments, invocation.style());
    if (arguments->json) printJson(identifier, *arguments);
  });
}

}  // namespace phone
