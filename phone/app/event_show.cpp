// phone event show: the view of an event, at its next occurrence, as text, JSON or a picture.
#include <CLI/CLI.hpp>
#include <cmath>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>

#include "phone/app/calendar_screen_text.h"
#include "phone/app/host_arguments.h"
#include "phone/app/listed_event.h"
#include "phone/app/local_time.h"
#include "phone/app/picture_option.h"
#include "phone/app/printed_json.h"
#include "phone/app/resolve_event.h"
#include "phone/app/verbs.h"
#include "phone/calendarui/calendar_process.h"
#include "phone/eventkit/store_connection.h"
#include "phone/foundation/file_problems.h"
#include "platform/foundation/ns_date.h"

namespace phone {

namespace {

struct Arguments {
  HostArguments host;
  std::string event;
  PictureOption picture;
  bool json = false;
};

void show(const Arguments& arguments, const Invocation& invocation) {
  auto calendar = CalendarProcess::boot(arguments.host.options(invocation.root()), invocation.plugin());
  const double now = NSDate::date()->timeIntervalSinceReferenceDate();
  const ListedEvent event = nextOfEvent(resolveEvent(arguments.event), static_cast<Seconds>(std::floor(now)));
  EKEventViewController* const view =
      calendar.openOccurrence(event.identifier, static_cast<double>(event.occurrence.start));
  requireNoFileProblem();
  if (arguments.picture.isWanted()) arguments.picture.write(calendar.pictureOf(view));
  std::ostream& out = arguments.picture.text();
  if (arguments.json) {
    out << printedJson(jsonOf(event, zoneNamed(phoneZone().name())));
  } else {
    out << textOf(calendar.screenOf(view), invocation.style());
  }
}

}  // namespace

void addEventShowVerb(CLI::App& event, const Invocation& invocation) {
  CLI::App* const verb =
      addVerb(event, "show",
              "Show an event's view, with its switch; of a repeating one, the occurrence that comes next",
              "phone event show \"Team meeting\" --png event.png");
  const auto arguments = std::make_shared<Arguments>();
  verb->add_option("EVENT", arguments->event, kEventArgument)->required();
  arguments->picture.addTo(*verb, "Draw the view into this file");
  verb->add_flag("--json", arguments->json, "Print JSON instead of text: the object of \"phone event list\"");
  arguments->host.addOptionsTo(*verb);
  verb->callback([&invocation, arguments] { show(*arguments, invocation); });
}

}  // namespace phone
