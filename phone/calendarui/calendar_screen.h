// A calendar screen as its user sees it: bar and rows, as data and as a picture.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "phone/calendarui/item_table.h"

namespace phone {

struct ScreenBar {
  std::string title;
  std::string leftButton;
  std::string rightButton;
  /// A red button below all rows; none when empty.
  std::string deleteButton = {};
};

struct CalendarScreen {
  ScreenBar bar;
  std::vector<std::vector<Row>> groups;
};

/// The screen's texts and switch states.
CalendarScreen describe(const ScreenBar& bar, const ItemTable& table);

/// Lays the screen out at the width and scale of the phone's screen, as long as its rows need (at least the
/// screen's height), and writes the picture as a PNG file. Throws std::runtime_error when it cannot.
void drawScreen(const ScreenBar& bar, const ItemTable& table, const std::filesystem::path& png);

}  // namespace phone
