#include "fuzz/support/sections.h"

#include <algorithm>

namespace phone::fuzz {

Sections sectionsOf(std::string_view bytes) {
  constexpr std::string_view kMark = "\n%% ";
  // With a line feed in front the first line is like any other.
  const std::string input = "\n" + std::string(bytes);
  Sections sections;
  std::string name;
  for (std::string_view rest = input;;) {
    const std::size_t end = rest.find(kMark);
    const std::string_view part = rest.substr(0, end);
    sections[name] = part.empty() ? part : part.substr(1);
    if (end == std::string_view::npos) return sections;
    rest.remove_prefix(end + kMark.size());
    const std::size_t nameEnd = std::min(rest.find('\n'), rest.size());
    name = rest.substr(0, nameEnd);
    rest.remove_prefix(nameEnd);
  }
}

std::optional<std::string> section(const Sections& sections, std::string_view name) {
  const auto found = sections.find(name);
  return found == sections.end() ? std::nullopt : std::optional(found->second);
}

std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

}  // namespace phone::fuzz
