#include "phone/uikit/text_language.h"

namespace phone {

PangoLanguage* languageOf(const std::string& utf8) {
  bool hasHangul = false;
  for (const char* at = utf8.data(); at < utf8.data() + utf8.size(); at = g_utf8_next_char(at)) {
    // Most texts have nothing of the kind, and their characters need no decoding.
    constexpr unsigned char kFirstLead = 0xE1;
    if (static_cast<unsigned char>(*at) < kFirstLead) continue;
    const GUnicodeScript script = g_unichar_get_script(g_utf8_get_char(at));
    if (script == G_UNICODE_SCRIPT_HIRAGANA || script == G_UNICODE_SCRIPT_KATAKANA) {
      return pango_language_from_string("ja");
    }
    hasHangul = hasHangul || script == G_UNICODE_SCRIPT_HANGUL;
  }
  return hasHangul ? pango_language_from_string("ko") : nullptr;
}

}  // namespace phone
