// The phone's calendars with the two choices that decide which of them the lock screen searches.
#pragma once

#include <string>
#include <vector>

#include "phone/calendarstore/database/calendar_database.h"
#include "platform/foundation/ns_dictionary.h"
#include "platform/foundation/ns_mutable_array.h"

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
  /// Whether the lock screen searches it.
  bool searched = false;
};

/// What the plug-in goes by when it chooses the calendars.
struct LockScreenSearch {
  /// By its own selection (its setting onlySelectedCalendars is off), else by the Calendar app's.
  bool bySelection = false;
  /// Why it searches no calendar at all, for people; empty when it searches what it goes by.
  std::string whyNothing = {};
};

/// The calendars, in the store's order. Throws std::runtime_error when the store cannot be read.
std::vector<CalendarRecord> storedCalendars();

/// The same with their choices, read as the plug-in reads them.
std::vector<CalendarChoice> calendarChoices();

LockScreenSearch lockScreenSearch();

/// "#RRGGBB" of 0xRRGGBBAA.
std::string colorText(std::uint32_t color);

/// The Calendar app's list of switched-off calendars (borrowed from its preferences); nil when there is
/// none.
NSMutableArray* deselectedIn(NSDictionary* preferences);

/// Switches calendars on or off in the Calendar app; the rest of its preferences stays.
void setShown(const std::vector<std::string>& identifiers, bool shown);

/// Replaces the plug-in's selection; the order counts.
void setSelected(const std::vector<std::string>& identifiers);

}  // namespace phone
