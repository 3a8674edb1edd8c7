// The scenes of the calendar's screens that pictures are kept of. The gallery in docs/ shows them, too.
#pragma once

#include <ostream>
#include <span>
#include <string>

#include "phone/calendarui/calendar_process.h"

namespace phone {

struct CalendarScene {
  /// Names its picture.
  const char* name;
  /// What it shows, for the gallery.
  const char* caption;
  /// How the command makes it.
  const char* command;
  /// Brings the screen up and gives it (borrowed).
  UIViewController* (*show)(CalendarProcess& calendar);
  const char* release = "8.4";
};

inline std::ostream& operator<<(std::ostream& out, const CalendarScene& scene) { return out << scene.name; }

std::span<const CalendarScene> calendarScenes();

/// The part of the gallery page that shows them, as Markdown.
std::string calendarGallery();

}  // namespace phone
