// Texts from calendars and files on a terminal.
#pragma once

#include <string>

namespace phone {

/// The text with every control character as a space: a title may hold anything, and a terminal must not act
/// on it.
inline std::string printable(std::string text) {
  for (char& c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x20 || byte == 0x7f) c = ' ';
  }
  return text;
}

}  // namespace phone
