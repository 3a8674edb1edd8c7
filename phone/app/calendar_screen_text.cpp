#include "phone/app/calendar_screen_text.h"

#include "phone/app/printable.h"

namespace phone {

std::string textOf(const CalendarScreen& screen) {
  std::string text = screen.bar.title + "\n";
  for (const auto& group : screen.groups) {
    text += "\n";
    for (const Row& row : group) {
      text += "  " + printable(row.text);
      if (!row.detail.empty()) text += ": " + printable(row.detail);
      if (row.switchOn) text += *row.switchOn ? " [on]" : " [off]";
      text += "\n";
    }
  }
  return text;
}

}  // namespace phone
