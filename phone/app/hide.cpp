// phone hide and unhide: an event's "Show on Lockscreen" switch, flipped in the event view.
#include <CLI/CLI.hpp>
#include <memory>

#include "phone/app/lockscreen_switch.h"
#include "phone/app/resolve_event.h"
#include "phone/app/verbs.h"
#include "phone/calendarui/calendar_process.h"

namespace phone {

namespace {

void addVerbFor(CLI::App& command, const Invocation& invocation, const std::string& name,
                const std::string& description, bool shown) {
  CLI::App* const verb = addVerb(command, name, description, "phone " + name + " \"Team meeting\"");
  const auto events = std::make_shared<std::vector<std::string>>();
  verb->add_option("EVENT", *events, kEventArgument)->required();
  verb->callback([&invocation, events, shown] {
    auto calendar = CalendarProcess::boot({.root = invocation.root()}, invocation.plugin());
    std::vector<std::string> identifiers;
    for (const std::string& event : *events) identifiers.push_back(resolveEvent(event));
    for (const std::string& identifier : identifiers) showOnLockscreen(calendar, identifier, shown);
  });
}

}  // namespace

void addHideVerbs(CLI::App& command, const Invocation& invocation) {
  addVerbFor(command, invocation, "hide", "Keep events off the lock screen", false);
  addVerbFor(command, invocation, "unhide", "Let events show on the lock screen again", true);
}

}  // namespace phone
