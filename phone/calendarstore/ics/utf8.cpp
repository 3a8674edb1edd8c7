#include "phone/calendarstore/ics/utf8.h"

#include <glib.h>

namespace phone {

namespace {

/// How many bytes at the start of the text are UTF-8. A zero byte, which GLib takes for an end, is.
std::size_t validLength(std::string_view text) {
  std::size_t valid = 0;
  while (valid < text.size()) {
    const gchar* end = nullptr;
    g_utf8_validate_len(text.data() + valid, text.size() - valid, &end);
    valid = static_cast<std::size_t>(end - text.data());
    if (valid == text.size() || text[valid] != '\0') break;
    ++valid;
  }
  return valid;
}

}  // namespace

bool isUtf8(std::string_view text) { return validLength(text) == text.size(); }

std::string toUtf8(std::string_view text) {
  std::string converted;
  while (true) {
    const std::size_t valid = validLength(text);
    converted += text.substr(0, valid);
    if (valid == text.size()) return converted;
    const auto byte = static_cast<unsigned char>(text[valid]);
    converted += {static_cast<char>(0xc0U | byte >> 6), static_cast<char>(0x80U | (byte & 0x3fU))};
    text.remove_prefix(valid + 1);
  }
}

}  // namespace phone
