// Inputs of several parts, such as the five files that a lock screen reads. An input is a text that people
// and mutations can both edit: a line "%% settings" begins the part of that name.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace phone::fuzz {

using Sections = std::map<std::string, std::string, std::less<>>;

/// The parts by name, each without the line feed at its end. What stands before the first name is the part
/// with an empty one; of two parts of one name the later counts.
Sections sectionsOf(std::string_view bytes);

/// The part of that name; none if there is none.
std::optional<std::string> section(const Sections& sections, std::string_view name);

/// The lines of a text, without their line feeds.
std::vector<std::string> linesOf(std::string_view text);

}  // namespace phone::fuzz
