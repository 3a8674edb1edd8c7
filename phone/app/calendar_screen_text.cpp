#include "phone/app/calendar_screen_text.h"

#include "phone/app/printable.h"
#include "phone/app/terminal_style.h"

namespace phone {

std::string textOf(const CalendarScreen& screen, const TerminalStyle& style) {
  std::string text = style.bold(screen.bar.title) + "\n";
  for (const auto& group : screen.groups) {
    text += "\n";
    for (const Row& row : group) {
      text += "  " + printable(row.text);
      if (!row.detail.empty()) text += ": " + printable(row.detail);
      if (row.switchOn) text += style.dim(*row.switchOn ? " [on]" : " [off]");
      text += "\n";
    }
  }
  return text;
}

}  // namespace phone
