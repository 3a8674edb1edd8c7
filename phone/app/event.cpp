// phone event: the calendar process. This file holds the verb and its two shortest ones, switch and delete.
#include <CLI/CLI.hpp>
#include <memory>

#include "phone/app/host_arguments.h"
#include "phone/app/lockscreen_switch.h"
#include "phone/app/resolve_event.h"
#include "phone/app/verbs.h"
#include "phone/calendarui/calendar_process.h"

namespace phone {

namespace {

struct Arguments {
  HostArguments host;
  std::string event;
  std::string position;
};

CalendarProcess startCalendar(const Arguments& arguments, const Invocation& invocation) {
  return CalendarProcess::boot(arguments.host.options(invocation.root()), invocation.plugin());
}

void addSwitch(CLI::App& event, const Invocation& invocation) {
  CLI::App* const verb = addVerb(event, "switch", "Flip an event's \"Show on Lockscreen\" switch in its view",
                                 "phone event switch \"Team meeting\" off");
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("EVENT", arguments->event, kEventArgument)->required();
  verb->add_option("POSITION", arguments->position, "on or off")
      ->required()
      ->check(CLI::IsMember({"on", "off"}));
  arguments->host.addOptionsTo(*verb);
  verb->callback([&invocation, arguments] {
    auto calendar = startCalendar(*arguments, invocation);
    showOnLockscreen(calendar, resolveEvent(arguments->event), arguments->position == "on");
  });
}

void addDelete(CLI::App& event, const Invocation& invocation) {
  CLI::App* const verb =
      addVerb(event, "delete", "Delete an event, a repeating one whole, by the button in its editor",
              "phone event delete \"Team meeting\"");
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("EVENT", arguments->event, kEventArgument)->required();
  arguments->host.addOptionsTo(*verb);
  verb->callback([&invocation, arguments] {
    auto calendar = startCalendar(*arguments, invocation);
    closeEditor(calendar, calendar.editEvent(resolveEvent(arguments->event)), EditAction::kDeleted);
  });
}

}  // namespace

void addEventVerb(CLI::App& command, const Invocation& invocation) {
  CLI::App* const event = addVerb(command, "event", "Look at and change events in the phone's calendar",
                                  "phone event list\n  phone event show \"Team meeting\" --png event.png");
  event->require_subcommand(1);
  addEventListVerb(*event, invocation);
  addEventShowVerb(*event, invocation);
  addEventNewVerb(*event, invocation);
  addEventEditVerb(*event, invocation);
  addSwitch(*event, invocation);
  addDelete(*event, invocation);
}

}  // namespace phone
