#include "phone/app/printable.h"

#include <array>
#include <cstdio>

#include "phone/calendarstore/ics/utf8.h"

namespace phone {

namespace {

/// The characters U+0080 to U+009F: a terminal takes them for the beginnings of commands.
bool isSecondControl(unsigned char first, unsigned char second) {
  return first == 0xC2 && second >= 0x80 && second < 0xA0;
}

std::string withoutControls(const std::string& text, bool keepLineFeeds) {
  std::string shown;
  shown.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (i + 1 < text.size() && isSecondControl(byte, static_cast<unsigned char>(text[i + 1]))) {
      shown += ' ';
      ++i;
    } else if ((byte < 0x20 && !(keepLineFeeds && byte == '\n')) || byte == 0x7F) {
      shown += ' ';
    } else {
      shown += text[i];
    }
  }
  return shown;
}

}  // namespace

std::string printable(const std::string& text) { return withoutControls(text, false); }

std::string printableLines(const std::string& text) { return withoutControls(text, true); }

std::string inQuotes(const std::string& text) {
  std::string shown = "\"";
  const bool isText = isUtf8(text);
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (isText || byte < 0x80) {
      shown += c;
      continue;
    }
    std::array<char, 5> escape{};
    std::snprintf(escape.data(), escape.size(), "\\x%02X", byte);
    shown += escape.data();
  }
  return printable(shown) + "\"";
}

}  // namespace phone
