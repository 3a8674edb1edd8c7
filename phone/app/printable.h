// Texts from calendars, files and users on a terminal.
#pragma once

#include <string>

namespace phone {

/// The text with every control character as a space: a title may hold anything, and a terminal must not act
/// on it.
std::string printable(const std::string& text);

/// The same for what may have several lines.
std::string printableLines(const std::string& text);

/// The text in quotes, for an error: bytes that are no UTF-8 as "\xFF".
std::string inQuotes(const std::string& text);

}  // namespace phone
