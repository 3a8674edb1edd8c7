// A screen of the calendar as text.
#pragma once

#include <string>

#include "phone/calendarui/calendar_screen.h"

namespace phone {

class TerminalStyle;

/// A line for each row, with the position of its switch; groups are set apart by an empty line.
std::string textOf(const CalendarScreen& screen, const TerminalStyle& style);

}  // namespace phone
