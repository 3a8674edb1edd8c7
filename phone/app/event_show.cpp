// phone event show: the event view as text, and as a picture.
#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "phone/app/calendar_screen_text.h"
#include "phone/app/event_meant.h"
#include "phone/app/host_arguments.h"
#include "phone/app/verbs.h"
#include "phone/calendarui/calendar_process.h"

namespace phone {

namespace {

struct Arguments {
  HostArguments host;
  std::string event;
  std::string png;
};

void show(const Arguments& arguments, const Invocation& invocation) {
  auto calendar = CalendarProcess::boot(arguments.host.options(invocation.root()), invocation.plugin());
  EKEventViewController* const view = calendar.openEvent(eventMeant(arguments.event));
  if (!arguments.png.empty()) calendar.draw(view, arguments.png);
  std::cout << textOf(calendar.screenOf(view));
}

}  // namespace

void addEventShowVerb(CLI::App& event, const Invocation& invocation) {
  CLI::App* const verb = addVerb(event, "show", "Show an event's view, with its switch",
                                 "phone event show \"Team meeting\" --png event.png");
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("EVENT", arguments->event, kEventArgument)->required();
  verb->add_option("--png", arguments->png, "Draw the view into this file");
  arguments->host.addOptionsTo(*verb);
  verb->callback([&invocation, arguments] { show(*arguments, invocation); });
}

}  // namespace phone
