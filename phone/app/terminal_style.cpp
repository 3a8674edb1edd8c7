#include "phone/app/terminal_style.h"

#include <charconv>
#include <cstdlib>
#include <string_view>
#include <unistd.h>

namespace phone {

namespace {

std::string_view variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

/// Whether the standard output shows looks, as far as the surroundings tell.
bool showsLooks() {
  const std::string_view terminal = variable("TERM");
  return isatty(STDOUT_FILENO) != 0 && variable("NO_COLOR").empty() && !terminal.empty() &&
         terminal != "dumb";
}

/// The nearest of the six steps that each part of a colour has among 256 colours.
unsigned step(unsigned part) {
  if (part < 48) return 0;
  return part < 115 ? 1 : (part - 35) / 40;
}

}  // namespace

TerminalStyle::TerminalStyle(const std::string& when) {
  if (when == "never" || (when == "auto" && !showsLooks())) return;
  const std::string_view kind = variable("COLORTERM");
  colors_ = kind == "truecolor" || kind == "24bit" ? Colors::kAll : Colors::k256;
}

std::string TerminalStyle::with(const char* look, const std::string& text) const {
  if (colors_ == Colors::kNone || text.empty()) return text;
  return std::string("\033[") + look + "m" + text + "\033[0m";
}

std::string TerminalStyle::dot(const std::string& color) const {
  unsigned rgb = 0;
  const char* const end = color.data() + color.size();
  const bool isColor = color.size() == 7 && std::from_chars(color.data() + 1, end, rgb, 16).ptr == end;
  if (colors_ == Colors::kNone || !isColor) return "";
  const unsigned red = rgb >> 16;
  const unsigned green = rgb >> 8 & 0xFF;
  const unsigned blue = rgb & 0xFF;
  const std::string look =
      colors_ == Colors::kAll
          ? "38;2;" + std::to_string(red) + ";" + std::to_string(green) + ";" + std::to_string(blue)
          : "38;5;" + std::to_string(16 + 36 * step(red) + 6 * step(green) + step(blue));
  return with(look.c_str(), "\u25CF") + " ";
}

}  // namespace phone
