// phone event show: the event view as text, and as a picture.
#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>

#include "phone/app/calendar_screen_text.h"
#include "phone/app/event_meant.h"
#include "phone/app/host_arguments.h"
#include "phone/app/picture_option.h"
#include "phone/app/verbs.h"
#include "phone/calendarui/calendar_process.h"
#include "phone/foundation/file_problems.h"

namespace phone {

namespace {

struct Arguments {
  HostArguments host;
  std::string event;
  PictureOption picture;
};

void show(const Arguments& arguments, const Invocation& invocation) {
  auto calendar = CalendarProcess::boot(arguments.host.options(invocation.root()), invocation.plugin());
  EKEventViewController* const view = calendar.openEvent(eventMeant(arguments.event));
  requireNoFileProblem();
  if (arguments.picture.isWanted()) arguments.picture.write(calendar.pictureOf(view));
  arguments.picture.text() << textOf(calendar.screenOf(view));
}

}  // namespace

void addEventShowVerb(CLI::App& event, const Invocation& invocation) {
  CLI::App* const verb = addVerb(event, "show", "Show an event's view, with its switch",
                                 "phone event show \"Team meeting\" --png event.png");
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("EVENT", arguments->event, kEventArgument)->required();
  arguments->picture.addTo(*verb, "Draw the view into this file");
  arguments->host.addOptionsTo(*verb);
  verb->callback([&invocation, arguments] { show(*arguments, invocation); });
}

}  // namespace phone
