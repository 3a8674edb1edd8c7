#include "tests/pictures/calendar_scene.h"

#include "platform/eventkit/ek_calendar.h"
#include "platform/foundation/ns_array.h"
#include "platform/foundation/ns_string.h"
#include "tests/pictures/scene.h"

namespace phone {

namespace {

constexpr char kRow[] = "Show on Lockscreen";

/// The design review of the calendar Work, the first that is imported.
std::string designReview(const CalendarProcess& calendar) {
  auto* const work = static_cast<EKCalendar*>(calendar.store()->calendars()->objectAtIndex(0));
  return std::string(work->calendarIdentifier()->UTF8String()) + ":w1";
}

UIViewController* eventView(CalendarProcess& calendar) { return calendar.openEvent(designReview(calendar)); }

UIViewController* eventViewSwitchedOff(CalendarProcess& calendar) {
  UIViewController* const view = eventView(calendar);
  calendar.setSwitch(view, kRow, false);
  return view;
}

UIViewController* editor(CalendarProcess& calendar) { return calendar.editEvent(designReview(calendar)); }

UIViewController* newEvent(CalendarProcess& calendar) {
  EKEventEditor* const shown = calendar.newEvent();
  calendar.enter(shown, {.title = "Surprise party", .allDay = true, .calendar = "Home"});
  calendar.setSwitch(shown, kRow, false);
  return shown;
}

const CalendarScene kScenes[] = {
    {"event-view", "The switch in an event's view.", "phone event show \"Design review\" --png event.png",
     eventView},
    {"event-view-off", "The same event, kept off the lock screen.",
     "phone event switch \"Design review\" off\nphone event show \"Design review\" --png event.png",
     eventViewSwitchedOff},
    {"editor", "The switch in the event editor.",
     "phone event edit \"Design review\" --cancel --png edit.png", editor},
    {"editor-ios-7", "The editor on iOS 7, where the switch stands behind the alert.",
     "phone event edit \"Design review\" --cancel --ios 7.1 --png edit.png", editor, "7.1"},
    {"new-event", "A new event that is never to show.",
     "phone event new --title \"Surprise party\" --start 2014-03-07 --all-day on --calendar Home \\\n"
     "  --show-on-lockscreen off --png new.png",
     newEvent},
};

}  // namespace

std::span<const CalendarScene> calendarScenes() { return kScenes; }

std::string calendarGallery() {
  std::string page =
      "\n## The calendar's screens\n\nThe event view and the event editor with the plug-in's row, made from "
      "the "
      "same calendars by these commands, each with\n`--now " +
      std::string(kSceneTime) + " --timezone " + kSceneTimeZone + "` behind it.\n";
  for (const CalendarScene& scene : kScenes) {
    page += "\n### " + std::string(scene.caption) + "\n\n```sh\n" + scene.command +
            "\n```\n\n<img src=\"../tests/pictures/calendar/" + scene.name + ".png\" width=\"320\" alt=\"" +
            scene.caption + "\">\n";
  }
  return page;
}

}  // namespace phone
