#include "tests/faults/verbs.h"

#include "tests/faults/sweep.h"

namespace phone {

namespace {

std::vector<Verb> mostTelling() {
  return {
      {"create", {"create", "--root", "second-phone"}, "made", true},
      {"import", {"import", "--remove-missing", "home.ics", "work.ics"}, "added"},
      {"calendarsHide", {"calendars", "hide", "Work"}},
      {"calendarsList", {"calendars", "list"}},
      {"hide", {"hide", "Dentist"}},
      {"unhide", {"unhide", "Opera"}},
      {"eventNew",
       {"event", "new", "--title", "Cinema", "--start", "2030-03-09T20:00", "--show-on-lockscreen", "off"},
       "(identifier)"},
      {"eventEdit", {"event", "edit", "Dentist", "--start", "2030-03-07T18:00", "--location", "Mill Lane"}},
      {"eventDelete", {"event", "delete", "Opera"}},
      {"eventList", {"event", "list", "--now", "2030-03-07T08:00"}},
      {"eventPicture", {"event", "show", "Dentist", "--png", "event.png"}},
      {"settingsSet", {"settings", "set", "displayLocation", "on"}},
      {"settingsUnsetAll", {"settings", "unset", "--all"}},
      {"settingsList", {"settings", "list"}},
      {"orderEventsFirst", {"order", "events-first"}},
      {"lockscreen", {"lockscreen", "--now", "2030-03-07T08:00"}},
      {"lockscreenPicture",
       {"lockscreen", "--now", "2030-03-07T08:00", "--wallpaper", "wallpaper.png", "--png", "lock.png"}},
  };
}

std::vector<Verb> others() {
  return {
      {"importNew", {"import", "home.ics"}, "added"},
      {"calendarsShow", {"calendars", "show", "Work"}},
      {"calendarsSelect", {"calendars", "select", "--none"}},
      {"eventSwitch", {"event", "switch", "Dentist", "off"}},
      {"eventShow", {"event", "show", "Dentist"}},
      {"settingsUnset", {"settings", "unset", "textSize"}},
      {"settingsGet", {"settings", "get", "textSize"}},
      {"orderNone", {"order", "none"}},
      {"orderSet", {"order", "set", "Reminders", "Orvessa", "System Items"}},
      {"orderShow", {"order", "show"}},
      {"lockscreenJson", {"lockscreen", "--now", "2030-03-07T08:00", "--json"}},
  };
}

}  // namespace

std::vector<Verb> verbsToStrike() {
  std::vector<Verb> verbs = mostTelling();
  if (!sweepsAll()) return verbs;
  for (Verb& verb : others()) verbs.push_back(std::move(verb));
  return verbs;
}

std::string nameOfVerb(const testing::TestParamInfo<Verb>& verb) { return verb.param.name; }

}  // namespace phone
