// The phone's calendars with the two choices that decide which of them the lock screen searches.
#pragma once

#include <string>
#include <vector>

namespace phone {

struct CalendarChoice {
  std::string identifier;
  std::string title;
  /// "#RRGGBB"
  std::string color;
  /// Not switched off in the Calendar app.
  bool shown = true;
  /// In the plug-in's calendar selection.
  bool selected = false;
};

/// The calendars, in the store's order. Throws std::runtime_error when store or files cannot be read.
std::vector<CalendarChoice> calendarChoices();

/// The one that the user means by its name or identifier. Throws std::runtime_error when none or several fit.
const CalendarChoice& calendarMeant(const std::vector<CalendarChoice>& calendars, const std::string& meant);

/// Switches calendars on or off in the Calendar app; the rest of its preferences stays.
void setShown(const std::vector<std::string>& identifiers, bool shown);

/// Replaces the plug-in's selection; the order counts.
void setSelected(const std::vector<std::string>& identifiers);

/// Whether the plug-in goes by its own selection: its setting onlySelectedCalendars is off.
bool selectionIsInEffect();

}  // namespace phone
