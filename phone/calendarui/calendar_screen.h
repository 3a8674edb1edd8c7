// A calendar screen as its user sees it: bar and rows, as data and as a picture.
#pragma once

#include <string>
#include <vector>

#include "phone/calendarui/item_table.h"
#include "phone/uikit/surface.h"

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

/// The screen's texts and switches, laid out at the width of the phone's screen and as long as the rows need.
CalendarScreen describe(const ScreenBar& bar, const ItemTable& table);

/// The same as a picture, at least as high as the phone's screen and at its scale. Throws std::runtime_error
/// when it would be too large.
Surface drawScreen(const ScreenBar& bar, const ItemTable& table);

}  // namespace phone
