#include "phone/calendarstore/ics/ics_text.h"

#include <algorithm>

namespace phone {

std::string unescapedText(std::string_view value) {
  std::string text;
  text.reserve(value.size());
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] != '\\' || i + 1 == value.size()) {
      text += value[i];
    } else {
      ++i;
      text += value[i] == 'n' || value[i] == 'N' ? '\n' : value[i];
    }
  }
  return text;
}

std::string escapedText(std::string_view text) {
  std::string value;
  value.reserve(text.size());
  for (const char c : text) {
    if (c == '\r') continue;
    if (c == '\\' || c == ';' || c == ',' || c == '\n') value += '\\';
    value += c == '\n' ? 'n' : c;
  }
  return value;
}

std::string foldedLine(std::string_view line) {
  constexpr std::size_t kLongestLine = 75;  // In bytes, without its end.
  const auto continuesCharacter = [line](std::size_t at) {
    return (static_cast<unsigned char>(line[at]) & 0xC0) == 0x80;
  };
  std::string folded;
  std::size_t room = kLongestLine;
  for (std::size_t at = 0; at < line.size();) {
    std::size_t end = std::min(at + room, line.size());
    // Bytes that are no UTF-8 may leave no place to fold at.
    for (int back = 0; back < 3 && end < line.size() && continuesCharacter(end); ++back) --end;
    if (at > 0) folded += "\r\n ";
    folded += line.substr(at, end - at);
    at = end;
    room = kLongestLine - 1;
  }
  return folded + "\r\n";
}

std::string textLine(std::string_view name, std::string_view text) {
  return foldedLine(std::string(name) + ":" + escapedText(text));
}

}  // namespace phone
